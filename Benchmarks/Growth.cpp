// Time per code unit on the worst text of each routine. It is the same for 1,000 and for a million code
// units if the routine is linear.
#include "HostJobs.h"

namespace benchmarks {
namespace {

// The text is `unit` repeatedly and then `end`. `make` returns the work on a text. Each size is a
// contestant.
template <typename Make>
void addGrowth(const char* name, std::u16string_view unit, std::u16string_view end, Make make) {
  for (const std::size_t size : {1000U, 10000U, 100000U, 1000000U}) {
    const BSTR text = keep(repeat(unit, size, end));
    addJob("growth", name).add(std::to_string(size), make(text), static_cast<double>(size));
  }
}

// A call of a host routine with the text as its first argument.
template <typename Routine, typename... Arguments>
auto callOf(Routine routine, Arguments... others) {
  return [=](BSTR text) { return [=] { return own(routine(text, others...)); }; };
}

}  // namespace

void addGrowthJobs() {
  const BSTR a = keep(u"a"), b = keep(u"b"), ab = keep(u"ab"), comma = keep(u","),
             longer = keep(u"; "), empty = keep(u""), longOne = keep(repeat(u"a", 99, u"b"));

  addGrowth("Trim blanks", u" ", u"", callOf(VB_StrLRTrim));
  addGrowth("Remove some colons", u"a:bcdefg", u"", callOf(VB_RemoveColon));
  addGrowth("Remove some digits", u"1,234.50 ", u"", callOf(VB_RemoveNonNumericChar));
  addGrowth("Remove unit", u"a", u"", callOf(VB_RemoveChar, a));
  addGrowth("Remove pairs", u"ab", u"", callOf(VB_RemoveChar, ab));
  addGrowth("Remove pairs to the left", u"a", u"b", callOf(VB_RemoveChar, ab));
  addGrowth("Remove threes to the left", u"ab", u"b", callOf(VB_RemoveChar, keep(u"abb")));
  addGrowth("Count pairs", u"ab", u"", callOf(ChrCount, ab));
  addGrowth("Count long without match", u"a", u"", callOf(ChrCount, longOne));
  addGrowth("Common unit among many", u"a", u"", callOf(VB_CommonChar, keep(repeat(u"bcd", 99))));
  addGrowth("Replace one for one", u"a", u"",
            [=](BSTR text) { return replaceAlternately(text, a, b); });
  addGrowth("Replace growing", u",", u"", callOf(VB_Replace, comma, longer));
  addGrowth("Replace shrinking", u"ab", u"", callOf(VB_Replace, ab, comma));
  addGrowth("Replace removing", u",", u"", callOf(VB_Replace, comma, empty));
  addGrowth("Replace long without match", u"a", u"", callOf(VB_Replace, longOne, a));
  addGrowth("Replace two", u"ab", u"", callOf(VB_Replace2, a, longer, b, empty));
  addGrowth("Markup tokens", u"<BR><QM><CM>", u"", callOf(VB_QUVARDHTMLProcessor));
  addGrowth("Slice between delimiters", u"a", u"(b)",
            callOf(StrBetweenChrAndChr, keep(u"("), keep(u")")));
  addGrowth("Phrase", u"a", u"", callOf(VB_LocalAN, a, keep(u"US")));
}

}  // namespace benchmarks
