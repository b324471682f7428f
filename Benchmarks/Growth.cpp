// Time for a unit of text, which is to stay the same from a thousand units to a million, on the worst
// text of each routine. Host routines run from host string to new host string.
#include "HostJob.h"

namespace benchmarks {
namespace {

constexpr std::size_t kSizes[] = {1000, 10000, 100000, 1000000};

// `call` makes what is to be measured of a text, which is `unit` again and again and then `end`.
template <typename Make>
void addGrowth(const char* name, std::u16string_view unit, std::u16string_view end, Make make) {
  for (const std::size_t size : kSizes) {
    Job& job = addJob("growth", name + (" @" + std::to_string(size)));
    job.add("ours", make(repeat(unit, size, end)));
    job.calls = static_cast<double>(size);
  }
}

// A call of a host routine on the text and on others.
template <typename Routine, typename... Arguments>
auto callOf(Routine routine, Arguments... others) {
  return [=](std::u16string_view text) {
    return [=, s = keep(text)] { return own(routine(s, others...)); };
  };
}

}  // namespace

void addGrowthJobs() {
  const BSTR a = keep(u"a"), b = keep(u"b"), ab = keep(u"ab"), comma = keep(u","),
             longer = keep(u"; "), empty = keep(u""), longOne = keep(repeat(u"a", 99, u"b"));

  addGrowth("Trim blanks", u" ", u"", callOf(VB_StrLRTrim));
  addGrowth("Trim nothing", u"a", u"", callOf(VB_StrLRTrim));
  addGrowth("Remove colons", u":", u"", callOf(VB_RemoveColon));
  addGrowth("Remove some colons", u"a:bcdefg", u"", callOf(VB_RemoveColon));
  addGrowth("Remove no digits", u"x", u"", callOf(VB_RemoveNonNumericChar));
  addGrowth("Remove some digits", u"1,234.50 ", u"", callOf(VB_RemoveNonNumericChar));
  addGrowth("Remove unit", u"a", u"", callOf(VB_RemoveChar, a));
  addGrowth("Remove pairs", u"ab", u"", callOf(VB_RemoveChar, ab));
  addGrowth("Remove pairs to the left", u"a", u"b", callOf(VB_RemoveChar, ab));
  addGrowth("Remove threes to the left", u"ab", u"b", callOf(VB_RemoveChar, keep(u"abb")));
  addGrowth("Count unit", u",", u"", callOf(ChrCount, comma));
  addGrowth("Count pairs", u"ab", u"", callOf(ChrCount, ab));
  addGrowth("Count long in vain", u"a", u"", callOf(ChrCount, longOne));
  addGrowth("Common unit", u"a", u"", callOf(VB_CommonChar, b));
  addGrowth("Common unit among many", u"a", u"", callOf(VB_CommonChar, keep(repeat(u"bcd", 99))));
  addGrowth("Replace one for one", u"a", u"",
            [=](std::u16string_view text) { return ReplaceToAndFro(text, a, b); });
  addGrowth("Replace some one for one", u"a,bcdefg", u"",
            [=](std::u16string_view text) { return ReplaceToAndFro(text, comma, keep(u";")); });
  addGrowth("Replace growing", u",", u"", callOf(VB_Replace, comma, longer));
  addGrowth("Replace some growing", u"a,bcdefg", u"", callOf(VB_Replace, comma, longer));
  addGrowth("Replace shrinking", u"ab", u"", callOf(VB_Replace, ab, comma));
  addGrowth("Replace removing", u",", u"", callOf(VB_Replace, comma, empty));
  addGrowth("Replace long in vain", u"a", u"", callOf(VB_Replace, longOne, a));
  addGrowth("Replace two", u"ab", u"", callOf(VB_Replace2, a, longer, b, empty));
  addGrowth("Markup tokens", u"<BR><QM><CM>", u"", callOf(VB_QUVARDHTMLProcessor));
  addGrowth("Slice between delimiters", u"a", u"(b)",
            callOf(StrBetweenChrAndChr, keep(u"("), keep(u")")));
  addGrowth("Phrase", u"a", u"", callOf(VB_LocalAN, a, keep(u"US")));
}

}  // namespace benchmarks
