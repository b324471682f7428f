// Every host routine on a million units, where what it looks for occurs about every ten units: from
// host string to new host string, and for other libraries from a string of 16-bit units to a new one.
#include "HostJob.h"
#include "Peers.h"

namespace benchmarks {
namespace {

using Text = std::u16string;
using IcuText = icu::UnicodeString;

constexpr std::size_t kUnits = 1000000;
constexpr std::size_t kHalf = kUnits / 2;

IcuText toIcu(const Text& text) { return {text.data(), static_cast<int32_t>(text.size())}; }

// A job with what a user of the standard library writes, whose result is that of the floor too.
template <typename ItsRoute, typename Standard, typename Routine, typename... Arguments>
Job& addLong(const char* name, Standard standard, ItsRoute route, Routine routine,
             Arguments... arguments) {
  return addHostJob("long", name, route, standard(), routine, arguments...).add("std", standard);
}

void addSliceJobs() {
  static const Text text = u"  mean (" + mixText(kUnits, {u","}) + u") of A  ";
  static const IcuText icuText = toIcu(text);
  static const Text blanks =
      repeat(u" ", kHalf / 2) + mixText(kHalf, {u","}) + repeat(u" ", kHalf / 2);
  static const IcuText icuBlanks = toIcu(blanks);
  const ViaBuffer route;
  const BSTR s = keep(text), ofBlanks = keep(blanks);
  constexpr auto end = static_cast<int32_t>(kUnits);
  constexpr auto half = static_cast<int32_t>(kHalf);

  addLong(
      "VB_StrLeft", [] { return text.substr(0, kHalf); }, route, VB_StrLeft, s, half)
      .add("ICU", [] { return IcuText(icuText, 0, half); });
  addLong(
      "VB_StrRight", [] { return text.substr(text.size() - kHalf); }, route, VB_StrRight, s, half)
      .add("ICU", [] { return IcuText(icuText, icuText.length() - half); });
  addLong(
      "VB_StrLTrim", [] { return text.substr(2); }, route, VB_StrLTrim, s);
  addLong(
      "VB_StrRTrim", [] { return text.substr(0, text.size() - 2); }, route, VB_StrRTrim, s);
  addLong(
      "VB_StrLRTrim", [] { return standard::trim(text); }, route, VB_StrLRTrim, s)
      .add("Boost", [] { return withBoost::trim(text); })
      .add("ICU", [] { return IcuText(icuText).trim(); });
  addLong(
      "VB_StrLRTrim half", [] { return standard::trim(blanks); }, route, VB_StrLRTrim, ofBlanks)
      .add("Boost", [] { return withBoost::trim(blanks); })
      .add("ICU", [] { return IcuText(icuBlanks).trim(); });
  addLong(
      "StrFromTo", [] { return text.substr(9, kUnits - 9); }, route, StrFromTo, s, 10, end)
      .add("ICU", [] { return IcuText(icuText, 9, end - 9); });
  addLong(
      "StrBetween", [] { return text.substr(10, kUnits - 11); }, route, StrBetween, s, 10, end)
      .add("ICU", [] { return IcuText(icuText, 10, end - 11); });
  addLong(
      "StrBetweenChrAndChr", [] { return standard::between(text, u'(', u')'); }, ViaObject(),
      StrBetweenChrAndChr, s, u"(", u")");
  addLong(
      "StrFromChrToChr",
      [] { return text.substr(text.find(u'('), text.find(u')') - text.find(u'(') + 1); }, route,
      StrFromChrToChr, s, u"(", u")");
}

void addRemovalJobs() {
  static const Text text = mixText(kUnits, {u":"});
  static const Text pairs = mixText(kUnits, {u"--", u"---", u"-"});
  static const Text numbers = mixText(kUnits, {u"1", u"2", u"4", u"8", u"0"});
  static const IcuText icuNumbers = toIcu(numbers);
  const ViaBuffer route;
  const auto erase = [] { return standard::removeUnit(text, u':'); };

  for (Job* job :
       {&addLong("VB_RemoveChar one unit", erase, route, VB_RemoveChar, keep(text), u":"),
        &addLong("VB_RemoveColon", erase, ViaUnits(), VB_RemoveColon, keep(text))}) {
    job->add("Boost", [] { return withBoost::erase_all_copy(text, u":"); }).add("Abseil", [] {
      return withAbseil::removeUnit(text, u':');
    });
  }
  addLong(
      "VB_RemoveChar two units", [] { return standard::removeFirstOfPairs(pairs, u'-', u'-'); },
      route, VB_RemoveChar, keep(pairs), u"--");
  addLong(
      "VB_RemoveNonNumericChar", [] { return standard::digitsOf(numbers); }, route,
      VB_RemoveNonNumericChar, keep(numbers))
      .add("Abseil", [] { return withAbseil::digitsOf(numbers); })
      .add("ICU", [] { return withIcu::digitsOf(icuNumbers); });
}

void addSearchJobs() {
  static const Text text = mixText(kUnits, {u","});
  static const IcuText icuText = toIcu(text);
  static const Text pairs = mixText(kUnits, {u", "});
  static const IcuText icuPairs = toIcu(pairs);
  static const Text chars = u";:#";
  const ViaBufferToNumber route;

  addLong(
      "VB_CommonChar", [] { return text.find_first_of(chars) == text.npos ? 0 : -1; }, route,
      VB_CommonChar, keep(text), u";:#")
      .add("Abseil", [] { return absl::c_find_first_of(text, chars) == text.end() ? 0 : -1; });
  addLong(
      "ChrCount one unit", [] { return standard::countUnit(text, u','); }, route, ChrCount,
      keep(text), u",")
      .add("Boost", [] { return withBoost::count(text, Text(u",")); })
      .add("Abseil", [] { return withAbseil::countUnit(text, u','); })
      .add("ICU", [] { return withIcu::count(icuText, u","); });
  addLong(
      "ChrCount two units", [] { return standard::count(pairs, Text(u", ")); }, route, ChrCount,
      keep(pairs), u", ")
      .add("Boost", [] { return withBoost::count(pairs, Text(u", ")); })
      .add("ICU", [] { return withIcu::count(icuPairs, u", "); });
}

void addReplacement(const char* name, const Text& text, const char16_t* pattern,
                    const char16_t* replacement) {
  const Text sought = pattern, inserted = replacement;
  const IcuText icuText = toIcu(text);
  addLong(
      name, [=] { return standard::replaceAll(text, sought, inserted); }, ViaUnits(), VB_Replace,
      keep(text), pattern, replacement)
      .add("Boost", [=] { return withBoost::replaceAll<Text>(text, sought, inserted); })
      .add("ICU", [=] { return withIcu::replaceAll(icuText, pattern, replacement); });
}

void addReplacementJobs() {
  static const Text text = mixText(kUnits, {u","});
  static const IcuText icuText = toIcu(text);
  static const Text comma = u",", semicolon = u";";
  const auto replaceUnit = [] { return standard::replaceUnit(text, u',', u';'); };
  Job& oneForOne = addReplaceToAndFro("long", text, replaceUnit());
  oneForOne.add("std", replaceUnit)
      .add("Boost", [] { return withBoost::replaceAll(text, comma, semicolon); })
      .add("Abseil", [] { return withAbseil::replaceUnit(text, u',', u';'); })
      .add("ICU", [] { return withIcu::replaceUnit(icuText, u',', u';'); });
  addReplacement("VB_Replace growing", text, u",", u", ");
  addReplacement("VB_Replace shrinking", mixText(kUnits, {u", "}), u", ", u",");
  addReplacement("VB_Replace deletion", text, u",", u"");
  addReplacement("VB_Replace two for two", mixText(kUnits, {u"\r\n"}), u"\r\n", u", ");

  static const Text fields = mixText(kUnits, {u"=", u";"});
  addLong(
      "VB_Replace2",
      [] {
        return standard::replaceAll(standard::replaceAll<Text>(fields, u"=", u": "), Text(u";"),
                                    Text(u", "));
      },
      ViaBufferAndUnits(), VB_Replace2, keep(fields), u"=", u": ", u";", u", ")
      .add("Boost", [] {
        return withBoost::replaceAll<Text>(withBoost::replaceAll<Text>(fields, u"=", u": "), u";",
                                           u", ");
      });
}

void addPhraseJobs() {
  static const Text text = u"r" + mixText(kUnits, {u","});
  static const Text part = mixText(kUnits / 6, {u","});
  static const Text marked = mixText(kUnits, {u"<BR>", u"<QM>", u"<CM>"});
  static const Text tokens[] = {u"<BR>", u"<QM>", u"<CM>"};
  const ViaBuffer route;
  const BSTR s = keep(text), sixth = keep(part);
  const auto capitalise = [] {
    Text result = text;
    result.front() = u'R';
    return result;
  };

  addLong(
      "VB_StrConcat",
      [] {
        Text result;
        result.reserve(6 * part.size());
        return result.append(part).append(part).append(part).append(part).append(part).append(part);
      },
      route, VB_StrConcat, sixth, sixth, sixth, sixth, sixth, sixth);
  addLong(
      "VB_LocalAN", [capitalise] { return capitalise() + u" model"; }, route, VB_LocalAN, s,
      u"Model", u"US");
  addLong(
      "VB_LocalAN2", [] { return Text(u"Model ") += text; }, route, VB_LocalAN2, s, u"Model", u"FR",
      0, 0, 0);
  addLong(
      "VB_LowerFirst", [] { return Text(text); }, route, VB_LowerFirst, s, u"US", 0);
  addLong("VB_UpperFirst", capitalise, route, VB_UpperFirst, s);
  addLong(
      "VB_SpStrSp", [] { return standard::wrap(text, u' ', u' '); }, ViaObject(), VB_SpStrSp, s);
  addLong(
      "VB_PStrP", [] { return standard::wrap(text, u'(', u')'); }, route, VB_PStrP, s);
  addLong(
      "VB_BStrB", [] { return standard::wrap(text, u'[', u']'); }, route, VB_BStrB, s);
  addLong(
      "VB_SingPlural", [] { return Text(text); }, ViaCopy(), VB_SingPlural, s, s, 2);
  addLong(
      "VB_QUVARDHTMLProcessor",
      [] {
        return standard::processMarkup(marked, tokens, {u'\n', u'"', u','});
      },
      route, VB_QUVARDHTMLProcessor, keep(marked))
      .add("Boost", [] {
        Text result = withBoost::replaceAll<Text>(marked, u"<BR>", u"\n");
        boost::algorithm::replace_all(result, u"<QM>", u"\"");
        boost::algorithm::replace_all(result, u"<CM>", u",");
        return result;
      });
  constexpr auto decimals = static_cast<int32_t>(kUnits);
  const auto zeros = [] { return Text(u"0.").append(kUnits, u'0'); };
  addLong("Cpp_DecimalFormat", zeros, route, Cpp_DecimalFormat, decimals);
  addLong("VB_OptimalFormat", zeros, route, VB_OptimalFormat, 0.5, decimals, 0, 0);
}

}  // namespace

void addLongJobs() {
  addSliceJobs();
  addRemovalJobs();
  addSearchJobs();
  addReplacementJobs();
  addPhraseJobs();
}

}  // namespace benchmarks
