// Host routines on a million code units, with an occurrence about every ten code units. The peers convert
// between the same kinds of text: from a null-terminated 16-bit text to a new null-terminated one.
#include <unicode/unistr.h>

#include <boost/algorithm/string.hpp>
#include <iterator>

#include "HostJobs.h"

namespace benchmarks {
namespace {

using Text16 = std::u16string;
using View = std::u16string_view;

constexpr std::size_t kUnits = 1000000;
constexpr auto kHalf = static_cast<int32_t>(kUnits / 2);

Job& add(const char* name, auto routine, auto... arguments) {
  return addHostJob("long", name, routine, arguments...);
}

// The names of peers.
constexpr auto kStd = "std", kBoost = "Boost", kIcu = "ICU";

Text16 toText(const icu::UnicodeString& text) {
  return {text.getBuffer(), static_cast<std::size_t>(text.length())};
}

Text16 replaceAll(View text, View pattern, View replacement) {
  Text16 result;
  result.reserve(text.size());
  std::size_t from = 0;
  for (std::size_t at; (at = text.find(pattern, from)) != text.npos; from = at + pattern.size()) {
    result.append(text, from, at - from).append(replacement);
  }
  return result.append(text, from);
}

// ICU's own findAndReplace() moves the rest of the text at each occurrence.
icu::UnicodeString replaceAllWithIcu(const char16_t* s, const icu::UnicodeString& pattern,
                                     const icu::UnicodeString& replacement) {
  const icu::UnicodeString text(true, s, -1);
  icu::UnicodeString result(text.length(), 0, 0);
  int32_t from = 0;
  for (int32_t at; (at = text.indexOf(pattern, from)) >= 0; from = at + pattern.length()) {
    result.append(text, from, at - from).append(replacement);
  }
  return result.append(text, from, text.length() - from);
}

void addSlices() {
  const BSTR s = keep(u"  mean (" + mixText(kUnits, {u","}) + u") of A  ");
  const BSTR blanks =
      keep(repeat(u" ", kUnits / 4) + mixText(kUnits / 2, {u","}) + repeat(u" ", kUnits / 4));

  add("VB_StrLeft", VB_StrLeft, s, kHalf).add(kStd, [=] {
    return Text16(View(s).substr(0, kUnits / 2));
  });
  add("VB_StrLRTrim", VB_StrLRTrim, blanks)
      .add(kStd,
           [=] {
             const View text = blanks;
             const std::size_t first = text.find_first_not_of(u' ');
             return Text16(text.substr(first, text.find_last_not_of(u' ') - first + 1));
           })
      .add(kIcu, [=] { return toText(icu::UnicodeString(true, blanks, -1).trim()); });
  add("StrFromChrToChr", StrFromChrToChr, s, u"(", u")").add(kStd, [=] {
    const View text = s;
    const std::size_t first = text.find(u'(');
    return Text16(text.substr(first, text.find(u')') - first + 1));
  });
  add("StrBetweenChrAndChr", StrBetweenChrAndChr, s, u"(", u")").add(kStd, [=] {
    const View text = s;
    const std::size_t first = text.find(u'(') + 1;
    return Text16(text.substr(first, text.find(u')') - first));
  });
}

void addRemovals() {
  const BSTR colons = keep(mixText(kUnits, {u":"}));
  const BSTR pairs = keep(mixText(kUnits, {u"--", u"---", u"-"}));
  const BSTR digits = keep(mixText(kUnits, {u"1", u"2", u"4", u"8", u"0"}));

  for (Job* job : {&add("VB_RemoveChar one unit", VB_RemoveChar, colons, u":"),
                   &add("VB_RemoveColon", VB_RemoveColon, colons)}) {
    job->add(kStd,
             [=] {
               Text16 text = colons;
               std::erase(text, u':');
               return text;
             })
        .add(kBoost, [=] { return boost::algorithm::erase_all_copy(Text16(colons), u":"); });
  }
  add("VB_RemoveChar two units", VB_RemoveChar, pairs, u"--");
  add("VB_RemoveNonNumericChar", VB_RemoveNonNumericChar, digits).add(kStd, [=] {
    Text16 text = digits;
    std::erase_if(text, [](char16_t unit) { return unit < u'0' || unit > u'9'; });
    return text;
  });
}

void addSearches() {
  const BSTR commas = keep(mixText(kUnits, {u","})), pairs = keep(mixText(kUnits, {u", "}));

  add("VB_CommonChar", VB_CommonChar, commas, u";:#").add(kStd, [=] {
    return View(commas).find_first_of(u";:#") == View::npos ? 0 : -1;
  });
  add("ChrCount one unit", ChrCount, commas, u",").add(kStd, [=] {
    const View text = commas;
    return static_cast<int32_t>(std::count(text.begin(), text.end(), u','));
  });
  add("ChrCount two units", ChrCount, pairs, u", ").add(kStd, [=] {
    const View text = pairs;
    int32_t count = 0;
    for (std::size_t at = 0; (at = text.find(u", ", at)) != text.npos; at += 2) ++count;
    return count;
  });
}

void addReplacement(const char* name, BSTR text, const char16_t* pattern,
                    const char16_t* replacement) {
  add(name, VB_Replace, text, pattern, replacement)
      .add(kStd, [=] { return replaceAll(text, pattern, replacement); })
      .add(kBoost,
           [=] { return boost::algorithm::replace_all_copy(Text16(text), pattern, replacement); })
      .add(kIcu, [=] { return toText(replaceAllWithIcu(text, pattern, replacement)); });
}

void addReplacements() {
  const Text16 commas = mixText(kUnits, {u","});
  const BSTR s = keep(commas), fields = keep(mixText(kUnits, {u"=", u";"}));

  addReplaceJob("long", commas).add(kStd, [=] {
    Text16 text = s;
    std::replace(text.begin(), text.end(), u',', u';');
    return text;
  });
  addReplacement("VB_Replace growing", s, u",", u", ");
  addReplacement("VB_Replace shrinking", keep(mixText(kUnits, {u", "})), u", ", u",");
  addReplacement("VB_Replace two for two", keep(mixText(kUnits, {u"\r\n"})), u"\r\n", u", ");
  add("VB_Replace2", VB_Replace2, fields, u"=", u": ", u";", u", ").add(kStd, [=] {
    return replaceAll(replaceAll(fields, u"=", u": "), u";", u", ");
  });
}

void addPhrases() {
  const BSTR s = keep(Text16(u"r") + mixText(kUnits, {u","})),
             part = keep(mixText(kUnits / 6, {u","}));
  const BSTR marked = keep(mixText(kUnits, {u"<BR>", u"<QM>", u"<CM>"}));

  add("VB_StrConcat", VB_StrConcat, part, part, part, part, part, part).add(kStd, [=] {
    return Text16(part).append(part).append(part).append(part).append(part).append(part);
  });
  add("VB_LocalAN2", VB_LocalAN2, s, u"Model", u"FR", 0, 0, 0).add(kStd, [=] {
    return Text16(u"Model ").append(s);
  });
  add("VB_UpperFirst", VB_UpperFirst, s).add(kStd, [=] {
    Text16 text = s;
    text.front() = u'R';
    return text;
  });
  add("VB_SpStrSp", VB_SpStrSp, s).add(kStd, [=] { return Text16(u" ").append(s).append(u" "); });
  add("VB_PStrP", VB_PStrP, s).add(kStd, [=] { return Text16(u"(").append(s).append(u")"); });
  add("VB_SingPlural", VB_SingPlural, s, s, 2).add(kStd, [=] { return Text16(s); });
  add("VB_QUVARDHTMLProcessor", VB_QUVARDHTMLProcessor, marked).add(kStd, [=] {
    const Text16 lines = replaceAll(marked, u"<BR>", u"\n");
    return replaceAll(replaceAll(lines, u"<QM>", u"\""), u"<CM>", u",");
  });
  add("Cpp_DecimalFormat", Cpp_DecimalFormat, static_cast<int32_t>(kUnits)).add(kStd, [] {
    return Text16(u"0.").append(kUnits, u'0');
  });
}

}  // namespace

void addLongJobs() {
  addSlices();
  addRemovals();
  addSearches();
  addReplacements();
  addPhrases();
}

}  // namespace benchmarks
