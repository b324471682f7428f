// Every host routine, for tests that go over the whole interface.
#ifndef TESTS_SUPPORT_HOSTROUTINES_H
#define TESTS_SUPPORT_HOSTROUTINES_H

#include <functional>
#include <utility>

#include "support/Expectations.h"
#include "support/Stepwise.h"

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
  std::size_t strings;                     // number of host strings it takes
  std::function<Text(Handles)> call;       // its result as text, released
  std::function<void(Handles)> run;        // the same call, its result released at once
  std::function<Text(const Texts&)> wide;  // the same from wide text
  std::function<std::vector<std::string>(const Texts&)> shown;  // all arguments, for a failure
  std::function<BSTR(Handles)> make = {};  // its result itself, if that is a host string
  const Path* path = nullptr;

  // Whether a null string ends the call before any service.
  bool isEndedBy(const Texts& texts) const {
    return path->endsAtNull &&
           (texts[0] == kNullHandle || (strings > 1 && texts[1] == kNullHandle));
  }

  // Whether the first text itself changes.
  bool worksInPlace(const Texts& texts) const {
    return !path->resultInPlace.empty() && !isEndedBy(texts) && texts[1].size() == 1 &&
           texts[2].size() == 1;
  }

  // The result of a call; the null handle is read as the empty text.
  Text expected(Texts texts) const {
    if (isEndedBy(texts) && !path->result.empty()) return kNullHandle;
    std::replace(texts.begin(), texts.end(), kNullHandle, Text());
    return wide(texts);
  }

  // A call as a failure shows it.
  std::string show(const Texts& texts) const { return name + "(" + listOf(shown(texts)) + ")"; }
};

inline Text textOf(BSTR result) { return take(result); }
inline Text textOf(const Text& result) { return result; }
inline Text textOf(std::int32_t result) { return std::to_wstring(result); }

inline void discard(BSTR result) { releaseBSTR(result); }
inline void discard(const auto&) {}

// A host routine that takes host strings and then these scalars, as they are at the time of a call,
// and what does the same with wide text.
template <typename Result, typename... Parameters, typename... Scalars>
HostRoutine routineOf(const char* name, Result (*host)(Parameters...), auto wide,
                      Scalars&... scalars) {
  constexpr std::size_t count = sizeof...(Parameters) - sizeof...(Scalars);
  const auto call = [&scalars...](auto routine, const auto& strings) {
    return [&]<std::size_t... i>(std::index_sequence<i...>) {
      return routine(strings[i]..., scalars...);
    }
    (std::make_index_sequence<count>());
  };
  const auto shown = [&scalars...](const Texts& texts) {
    std::vector<std::string> arguments;
    for (std::size_t i = 0; i < count; ++i) arguments.push_back(show(texts[i]));
    (arguments.push_back(show(scalars)), ...);
    return arguments;
  };
  const auto callHost = [=](Handles handles) {
    const auto describe = [&] {
      return std::string(name) + "(" + listOf(shown(textsOf({handles, count}))) + ")";
    };
    return named(describe, [&] { return call(host, handles); });
  };
  HostRoutine routine{name,
                      count,
                      [=](Handles s) { return textOf(callHost(s)); },
                      [=](Handles s) { discard(call(host, s)); },
                      [=](const Texts& t) { return textOf(call(wide, t)); },
                      shown};
  if constexpr (std::is_same_v<Result, BSTR>) routine.make = callHost;
  return routine;
}

// The numbers that the routines are given beside their strings.
struct Numbers {
  int32_t from = 1, to = 3, decimals = 9;
  HostBool flag1 = 0, flag2 = -1, flag3 = 1;
  double value = 1e6 + 0.5;
};
inline const Numbers kUsualNumbers;

inline std::vector<HostRoutine> hostRoutines(const Numbers& numbers = kUsualNumbers) {
  const auto& [from, to, decimals, flag1, flag2, flag3, value] = numbers;
  const auto localAN = [](Text a, Text b, Text c) { return LocalAN(a, b, c, -1, 0, 0); };
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
  const auto setFormat = +[](std::int32_t digits) -> BSTR {
    BSTR formats[1] = {};
    VB_SetFormat(formats, 1, 0, digits);
    return formats[0];
  };
  const auto formatOf = [](int32_t digits) { return DecimalFormat(digits < 1 ? 0 : digits - 1); };

  std::vector<HostRoutine> all;
  const auto add = [&all](const Path& path, std::vector<HostRoutine> routines) {
    for (HostRoutine& routine : routines) routine.path = &path;
    all.insert(all.end(), routines.begin(), routines.end());
  };
#define ROUTINE(host, ...) routineOf(#host, host, __VA_ARGS__)
  add(kBuffer, {ROUTINE(VB_StrLeft, StrLeft, from),
                ROUTINE(VB_StrRight, StrRight, from),
                ROUTINE(VB_StrConcat, StrConcat),
                ROUTINE(VB_StrLTrim, StrLTrim),
                ROUTINE(VB_StrRTrim, StrRTrim),
                ROUTINE(VB_StrLRTrim, StrLRTrim),
                ROUTINE(VB_RemoveChar, RemoveChar),
                ROUTINE(VB_RemoveNonNumericChar, RemoveNonNumericChar),
                ROUTINE(StrFromTo, stepwise::StrFromTo, from, to),
                ROUTINE(StrBetween, stepwise::StrBetween, from, to),
                ROUTINE(StrFromChrToChr, stepwise::StrFromChrToChr),
                ROUTINE(VB_LocalAN, localAN),
                ROUTINE(VB_LocalAN2, LocalAN, flag1, flag2, flag3),
                ROUTINE(VB_LowerFirst, LowerFirst, flag1),
                ROUTINE(VB_UpperFirst, UpperFirst),
                ROUTINE(VB_PStrP, PStrP),
                ROUTINE(VB_BStrB, stepwise::VB_BStrB),
                ROUTINE(VB_QUVARDHTMLProcessor, QUVARDHTMLProcessor),
                ROUTINE(Cpp_DecimalFormat, DecimalFormat, decimals),
                ROUTINE(VB_OutputFormat, OutputFormat, value),
                ROUTINE(VB_OptimalFormat, OptimalFormat, value, decimals, flag2, flag3),
                routineOf("VB_SetFormat", setFormat, formatOf, decimals)});
  add(kToNumber, {ROUTINE(VB_CommonChar, CommonChar)});
  add(kToNumberOrNull, {ROUTINE(ChrCount, cChrCount)});
  add(kBufferAndUnits, {ROUTINE(VB_Replace2, stepwise::VB_Replace2)});
  add(kUnitsOrNull, {ROUTINE(VB_RemoveColon, stepwise::VB_RemoveColon)});
  add(kReplace, {routineOf("VB_Replace", replacedOrNull, stepwise::Replace)});
  add(kObject, {ROUTINE(StrBetweenChrAndChr, cStrBetweenChrAndChr), ROUTINE(VB_SpStrSp, SpStrSp)});
  add(kCopy, {ROUTINE(VB_SingPlural, SingPlural, to)});
  add(kToWideText, {ROUTINE(convToWstring, [](Text text) { return text; })});
  add(kHandlesAlone, {routineOf("SwapStr", areSwapped, [](Text, Text) { return -1; })});
#undef ROUTINE
  return all;
}

// Defines a test of each host routine, named after it: VB_Replace.GuardPages.
#define TEST_EACH_HOST_ROUTINE(test)                         \
  static void test##Of(const HostRoutine& routine);          \
  [[maybe_unused]] static const bool test##IsAdded = [] {    \
    for (const HostRoutine& each : hostRoutines()) {         \
      addTest(each.name, #test, [each] { test##Of(each); }); \
    }                                                        \
    return true;                                             \
  }();                                                       \
  static void test##Of(const HostRoutine& routine)

#endif
