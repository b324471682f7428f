// The wide routines on a million units, from a std::wstring by value to a new one. What other
// libraries do without a copy of the text, they do without it here.
#include "Contestants.h"
#include "Peers.h"

namespace benchmarks {
namespace {

using Text = std::wstring;

constexpr std::size_t kUnits = 1000000;
constexpr std::size_t kHalf = kUnits / 2;

template <typename Ours, typename Standard>
Job& addWide(const char* name, Ours ours, Standard standard) {
  return addJob("wide", name).add("ours", ours).add("std", standard);
}

Text mixWide(std::size_t length, const std::vector<std::u16string_view>& tokens) {
  return widen(mixText(length, tokens));
}

void addCutJobs() {
  static const Text text = L"  mean (" + mixWide(kUnits, {u","}) + L") of A  ";
  static const Text blanks = Text(kHalf / 2, L' ') + mixWide(kHalf, {u","}) + Text(kHalf / 2, L' ');
  static const Text part = mixWide(kUnits / 6, {u","});
  constexpr auto half = static_cast<int32_t>(kHalf);

  addWide(
      "StrLeft", [] { return StrLeft(text, half); }, [] { return text.substr(0, kHalf); });
  addWide(
      "StrRight", [] { return StrRight(text, half); },
      [] { return text.substr(text.size() - kHalf); });
  addWide(
      "StrLTrim", [] { return StrLTrim(text); }, [] { return text.substr(2); });
  addWide(
      "StrRTrim", [] { return StrRTrim(text); }, [] { return text.substr(0, text.size() - 2); });
  addWide(
      "StrLRTrim", [] { return StrLRTrim(text); }, [] { return standard::trim(text); })
      .add("Boost", [] { return withBoost::trim(text); });
  addWide(
      "StrLRTrim half", [] { return StrLRTrim(blanks); }, [] { return standard::trim(blanks); })
      .add("Boost", [] { return withBoost::trim(blanks); });
  addWide(
      "cStrBetweenChrAndChr", [] { return cStrBetweenChrAndChr(text, L"(", L")"); },
      [] { return standard::between(text, L'(', L')'); });
  addWide(
      "StrConcat", [] { return StrConcat(part, part, part, part, part, part); },
      [] {
        Text result;
        result.reserve(6 * part.size());
        return result.append(part).append(part).append(part).append(part).append(part).append(part);
      });
}

void addRemovalJobs() {
  static const Text text = mixWide(kUnits, {u":"});
  static const Text pairs = mixWide(kUnits, {u"--", u"---", u"-"});
  static const Text numbers = mixWide(kUnits, {u"1", u"2", u"4", u"8", u"0"});

  addWide(
      "RemoveChar one unit", [] { return RemoveChar(text, L":"); },
      [] { return standard::removeUnit(text, L':'); })
      .add("Boost", [] { return withBoost::erase_all_copy(text, L":"); })
      .add("Abseil", [] { return withAbseil::removeUnit(text, L':'); });
  addWide(
      "RemoveChar two units", [] { return RemoveChar(pairs, L"--"); },
      [] { return standard::removeFirstOfPairs(pairs, L'-', L'-'); });
  addWide(
      "RemoveColon", [] { return RemoveColon(text); },
      [] { return standard::trim(standard::removeUnit(text, L':')); });
  addWide(
      "RemoveSemicolon", [] { return RemoveSemicolon(text); },
      [] { return standard::trim(standard::removeUnit(text, L';')); });
  addWide(
      "RemoveNonNumericChar", [] { return RemoveNonNumericChar(numbers); },
      [] { return standard::digitsOf(numbers); })
      .add("Abseil", [] { return withAbseil::digitsOf(numbers); });
}

void addSearchJobs() {
  static const Text text = mixWide(kUnits, {u","});
  static const Text pairs = mixWide(kUnits, {u", "});

  addWide(
      "CommonChar", [] { return CommonChar(text, L";:#"); },
      [] { return text.find_first_of(L";:#") == text.npos ? 0 : -1; });
  addWide(
      "cChrCount one unit", [] { return cChrCount(text, L","); },
      [] { return standard::countUnit(text, L','); })
      .add("Boost", [] { return withBoost::count(text, Text(L",")); })
      .add("Abseil", [] { return withAbseil::countUnit(text, L','); });
  addWide(
      "cChrCount two units", [] { return cChrCount(pairs, L", "); },
      [] { return standard::count(pairs, Text(L", ")); })
      .add("Boost", [] { return withBoost::count(pairs, Text(L", ")); });
}

void addReplacement(const char* name, const Text& text, const wchar_t* pattern,
                    const wchar_t* replacement) {
  const Text sought = pattern, inserted = replacement;
  addWide(
      name, [=] { return Replace(text, sought, inserted); },
      [=] { return standard::replaceAll(text, sought, inserted); })
      .add("Boost", [=] { return withBoost::replaceAll<Text>(text, sought, inserted); });
}

void addReplacementJobs() {
  static const Text text = mixWide(kUnits, {u","});
  static const Text comma = L",", semicolon = L";";
  addWide(
      "Replace one for one", [] { return Replace(text, L",", L";"); },
      [] { return standard::replaceUnit(text, L',', L';'); })
      .add("Boost", [] { return withBoost::replaceAll(text, comma, semicolon); })
      .add("Abseil", [] { return withAbseil::replaceUnit(text, L',', L';'); });
  addReplacement("Replace growing", text, L",", L", ");
  addReplacement("Replace shrinking", mixWide(kUnits, {u", "}), L", ", L",");
  addReplacement("Replace deletion", text, L",", L"");
}

void addPhraseJobs() {
  static const Text text = L"r" + mixWide(kUnits, {u","});
  static const Text marked = mixWide(kUnits, {u"<BR>", u"<QM>", u"<CM>"});
  static const Text tokens[] = {L"<BR>", L"<QM>", L"<CM>"};
  const auto capitalise = [] {
    Text result = text;
    result.front() = L'R';
    return result;
  };

  addWide(
      "StrLCase", [] { return StrLCase(text); },
      [] {
        Text result = text;
        for (wchar_t& unit : result) {
          unit = static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(unit)));
        }
        return result;
      });
  addWide(
      "LocalAN", [] { return LocalAN(text, L"Model", L"US", -1, 0, 0); },
      [capitalise] { return capitalise() + L" model"; });
  addWide(
      "LowerFirst", [] { return LowerFirst(text, L"US", 0); }, [] { return Text(text); });
  addWide(
      "UpperFirst", [] { return UpperFirst(text); }, capitalise);
  addWide(
      "SpStrSp", [] { return SpStrSp(text); }, [] { return standard::wrap(text, L' ', L' '); });
  addWide(
      "PStrP", [] { return PStrP(text); }, [] { return standard::wrap(text, L'(', L')'); });
  addWide(
      "SingPlural", [] { return SingPlural(text, L"", 1); }, [] { return Text(text); });
  addWide(
      "QUVARDHTMLProcessor", [] { return QUVARDHTMLProcessor(marked); },
      [] {
        return standard::processMarkup(marked, tokens, {L'\n', L'"', L','});
      });
}

void addPatternJobs() {
  static const std::u16string units = mixText(kUnits, {u","});
  const BSTR handle = keep(units);
  const auto zeros = [] { return Text(L"0.").append(kUnits, L'0'); };

  addWide(
      "convToWstring", [handle] { return convToWstring(handle); }, [] { return widen(units); });
  addWide(
      "DecimalFormat", [] { return DecimalFormat(kUnits); }, zeros);
  addWide(
      "OptimalFormat", [] { return OptimalFormat(0.5, kUnits, 0, 0); }, zeros);
  addWide(
      "SetFormat one",
      [] {
        Text format;
        SetFormat(&format, 1, kUnits + 1, -1);
        return format;
      },
      zeros);
}

}  // namespace

void addWideJobs() {
  addCutJobs();
  addRemovalJobs();
  addSearchJobs();
  addReplacementJobs();
  addPhraseJobs();
  addPatternJobs();
}

}  // namespace benchmarks
