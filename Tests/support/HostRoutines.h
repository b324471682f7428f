// Every host routine, for tests that go over the whole interface.
#ifndef TESTS_SUPPORT_HOSTROUTINES_H
#define TESTS_SUPPORT_HOSTROUTINES_H

#include <functional>
#include <utility>
#include <vector>

#include "support/Expectations.h"

using Texts = std::vector<Text>;
using Handles = const BSTR*;

// The way across the boundary: the services for the first string, for each other one and for a
// resulting string. A null first or second string may end the call before any of them. The strings
// may be taken in an order of their own. Where one unit takes the place of one, the text itself may
// change, and another service gives the result.
struct Path {
  std::string first, others, result;
  bool endsAtNull = false;
  std::vector<std::size_t> order = {};
  std::string resultInPlace = {};
};
inline const Path kBuffer{"CW162W32", "CW162W32", "SysAllocString2"};
inline const Path kToNumber{"CW162W32", "CW162W32", ""};
inline const Path kToNumberOrNull{"CW162W32", "CW162W32", "", true};
inline const Path kBufferAndUnits{"CW162W32", "wcslen16", "SysAllocString2"};
inline const Path kUnitsOrNull{"wcslen16", "wcslen16", "SysAllocString2", true};
inline const Path kObject{"convertBSTRtoWstring", "convertBSTRtoWstring", "convertWstringToBSTR"};
inline const Path kCopy{"", "", "SysAllocString16"};
inline const Path kReplace{"wcslen16", "wcslen16", "SysAllocString2",
                           true,       {1, 0, 2},  "SysAllocString16"};
inline const Path kToWideText{"CW162W32", "", ""};
inline const Path kHandlesAlone{"", "", ""};

struct HostRoutine {
  std::string name;
  std::size_t strings;                         // number of host strings it takes
  std::function<Text(Handles)> call;           // its result as text, released
  std::function<void(Handles)> run;            // the same call, its result released at once
  std::function<Text(const Texts&)> expected;  // the same from wide text, null read as empty
  const Path* path = nullptr;

  // Whether the first text itself changes.
  bool worksInPlace(const Texts& texts) const {
    return !path->resultInPlace.empty() && texts[1].size() == 1 && texts[2].size() == 1;
  }
};

inline Text textOf(BSTR result) { return taken(result); }
inline Text textOf(const Text& result) { return result; }
inline Text textOf(std::int32_t result) { return std::to_wstring(result); }

inline void discard(BSTR result) { releaseBSTR(result); }
template <typename Result>
void discard(const Result&) {}

// A host routine that takes host strings and then these scalars, and what does the same with wide
// text.
template <typename Result, typename... Parameters, typename Wide, typename... Scalars>
HostRoutine routineOf(const char* name, Result (*host)(Parameters...), Wide wide,
                      Scalars... scalars) {
  constexpr std::size_t count = sizeof...(Parameters) - sizeof...(Scalars);
  const auto called = [=](auto routine, const auto& strings) {
    return [&]<std::size_t... i>(std::index_sequence<i...>) {
      return routine(strings[i]..., scalars...);
    }
    (std::make_index_sequence<count>());
  };
  return {name, count, [=](Handles s) { return textOf(called(host, s)); },
          [=](Handles s) { discard(called(host, s)); },
          [=](const Texts& t) { return textOf(called(wide, t)); }};
}

inline Text replacedStepwise(Text text, const Text& pattern, const Text& replacement) {
  if (pattern.empty()) return text;
  for (std::size_t at = 0; (at = text.find(pattern, at)) != text.npos; at += replacement.size()) {
    text = text.substr(0, at) + replacement + text.substr(at + pattern.size());
  }
  return text;
}

inline std::vector<HostRoutine> hostRoutines() {
  const auto fromChrToChr = [](Text text, Text opening, Text closing) {
    const std::size_t first = text.find(opening), last = text.find(closing);
    const bool units = opening.empty() || closing.empty() || opening.size() * closing.size() == 1;
    return units && first <= last && last != text.npos ? text.substr(first, last - first + 1) : L"";
  };
  const auto replacedTwice = [](Text text, Text sought1, Text with1, Text sought2, Text with2) {
    return replacedStepwise(replacedStepwise(text, sought1, with1), sought2, with2);
  };
  const auto localAN = [](Text a, Text b, Text c) { return LocalAN(a, b, c, -1, 0, 0); };
  const auto slice = [](Text text, int, int) { return text.substr(0, 1); };
  const auto between = [](Text t, int, int) { return t.size() < 3 ? L""s : t.substr(1, 1); };
  const auto noColon = [](Text text) { return RemoveChar(text, L":"); };
  const auto inBrackets = [](Text text) { return L"[" + text + L"]"; };
  // Where VB_Replace gives its argument itself, which is not to be released, the null handle.
  const auto replacedOrNull = +[](BSTR text, BSTR pattern, BSTR replacement) -> BSTR {
    const BSTR result = VB_Replace(text, pattern, replacement);
    return result == text ? nullptr : result;
  };
  const auto areSwapped = +[](BSTR a, BSTR b) -> HostBool {
    BSTR first = a, second = b;
    SwapStr(&first, &second);
    return first == b && second == a ? -1 : 0;
  };
  const auto firstFormat = +[](std::int32_t digits) -> BSTR {
    BSTR formats[1] = {};
    VB_SetFormat(formats, 1, digits, -1);
    return formats[0];
  };

  std::vector<HostRoutine> all;
  const auto add = [&all](const Path& path, std::vector<HostRoutine> routines) {
    for (HostRoutine& routine : routines) routine.path = &path;
    all.insert(all.end(), routines.begin(), routines.end());
  };
#define ROUTINE(host, ...) routineOf(#host, host, __VA_ARGS__)
  add(kBuffer,
      {ROUTINE(VB_StrLeft, StrLeft, 1), ROUTINE(VB_StrRight, StrRight, 1),
       ROUTINE(VB_StrConcat, StrConcat), ROUTINE(VB_StrLTrim, StrLTrim),
       ROUTINE(VB_StrRTrim, StrRTrim), ROUTINE(VB_StrLRTrim, StrLRTrim),
       ROUTINE(VB_RemoveChar, RemoveChar), ROUTINE(VB_RemoveNonNumericChar, RemoveNonNumericChar),
       ROUTINE(StrFromTo, slice, 1, 1), ROUTINE(StrBetween, between, 1, 3),
       ROUTINE(StrFromChrToChr, fromChrToChr)});
  add(kBuffer,
      {ROUTINE(VB_LocalAN, localAN), ROUTINE(VB_LocalAN2, LocalAN, 0, -1, 1),
       ROUTINE(VB_LowerFirst, LowerFirst, 0), ROUTINE(VB_UpperFirst, UpperFirst),
       ROUTINE(VB_PStrP, PStrP), ROUTINE(VB_BStrB, inBrackets),
       ROUTINE(VB_QUVARDHTMLProcessor, QUVARDHTMLProcessor),
       ROUTINE(Cpp_DecimalFormat, DecimalFormat, 9), ROUTINE(VB_OutputFormat, OutputFormat, 0.25),
       ROUTINE(VB_OptimalFormat, OptimalFormat, 1e6 + 0.5, 4, -1, -1),
       routineOf(
           "VB_SetFormat", firstFormat, [](int digits) { return DecimalFormat(digits - 1); }, 5)});
  add(kToNumber, {ROUTINE(VB_CommonChar, CommonChar)});
  add(kToNumberOrNull, {ROUTINE(ChrCount, cChrCount)});
  add(kBufferAndUnits, {ROUTINE(VB_Replace2, replacedTwice)});
  add(kUnitsOrNull, {ROUTINE(VB_RemoveColon, noColon)});
  add(kReplace, {routineOf("VB_Replace", replacedOrNull, replacedStepwise)});
  add(kObject, {ROUTINE(StrBetweenChrAndChr, cStrBetweenChrAndChr), ROUTINE(VB_SpStrSp, SpStrSp)});
  add(kCopy, {ROUTINE(VB_SingPlural, SingPlural, 2)});
  add(kToWideText, {ROUTINE(convToWstring, [](Text text) { return text; })});
  add(kHandlesAlone, {routineOf("SwapStr", areSwapped, [](Text, Text) { return -1; })});
#undef ROUTINE
  return all;
}

#endif
