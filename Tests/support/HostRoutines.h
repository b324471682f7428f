// The table of all host routines: their references, their wide forms and the services that they call.
#ifndef TESTS_SUPPORT_HOSTROUTINES_H
#define TESTS_SUPPORT_HOSTROUTINES_H

#include <functional>
#include <utility>

#include "support/Expectations.h"
#include "support/TextReferences.h"

using Handles = const BSTR*;

// The services that a routine calls: for the first argument, for each further argument, for the result.
// "" means no call.
struct Path {
  std::string first, others, result;
  bool endsAtNull = false;              // a null first or second handle ends the call
  std::vector<std::size_t> order = {};  // of the arguments, if it is not ascending
  std::string resultInPlace = {};       // if one code unit replaces one in the text itself
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
  using OfTexts = std::function<Text(const Texts&)>;

  std::string name;
  std::size_t strings;                            // number of host strings that it takes
  std::function<std::string(const Texts&)> show;  // the call as a failure shows it
  std::function<Text(Handles)> call;       // returns the text of the result, which it releases
  std::function<void(Handles)> run;        // the same, but returns nothing
  std::function<BSTR(Handles)> make = {};  // returns the result; empty if it is no host string
  OfTexts reference;
  OfTexts wide = {};  // the wide routine; empty if there is none
  const Path* path = nullptr;

  // Whether a null handle ends the call before any service call.
  bool isEndedBy(const Texts& texts) const {
    return path->endsAtNull &&
           (texts[0] == kNullHandle || (strings > 1 && texts[1] == kNullHandle));
  }

  // Whether the call changes its first text.
  bool worksInPlace(const Texts& texts) const {
    return !path->resultInPlace.empty() && !isEndedBy(texts) && texts[1].size() == 1 &&
           texts[2].size() == 1;
  }

  // The result of a call. Null handles are read as empty texts.
  Text expected(Texts texts) const {
    if (isEndedBy(texts) && !path->result.empty()) return kNullHandle;
    std::replace(texts.begin(), texts.end(), kNullHandle, Text());
    return reference(texts);
  }
};

inline Text textOf(BSTR result) { return take(result); }
inline Text textOf(const Text& result) { return result; }
inline Text textOf(std::int32_t result) { return std::to_wstring(result); }

inline void discard(BSTR result) { releaseBSTR(result); }
inline void discard(const auto&) {}

// A host routine that takes host strings and then `scalars`, which are read at each call. `wide` may be
// nullptr.
template <typename Result, typename... Parameters, typename Wide, typename... Scalars>
HostRoutine routineOf(const char* name, Result (*host)(Parameters...), Wide wide, auto reference,
                      Scalars&... scalars) {
  constexpr std::size_t count = sizeof...(Parameters) - sizeof...(Scalars);
  const auto call = [&scalars...](auto routine, const auto& strings) {
    return [&]<std::size_t... i>(std::index_sequence<i...>) {
      return routine(strings[i]..., scalars...);
    }
    (std::make_index_sequence<count>());
  };
  const auto showTexts = [=](const Texts& texts) {
    return call([=](const auto&... arguments) { return showCall(name, arguments...); }, texts);
  };
  const auto make = [=](Handles handles) {
    const auto describe = [&] { return showTexts(textsOf({handles, count})); };
    return named(describe, [&] { return call(host, handles); });
  };
  HostRoutine routine{.name = name,
                      .strings = count,
                      .show = showTexts,
                      .call = [=](Handles s) { return textOf(make(s)); },
                      .run = [=](Handles s) { discard(call(host, s)); },
                      .reference = [=](const Texts& t) { return textOf(call(reference, t)); }};
  if constexpr (std::is_same_v<Result, BSTR>) routine.make = make;
  if constexpr (!std::is_null_pointer_v<Wide>) {
    routine.wide = [=](const Texts& t) { return textOf(call(wide, t)); };
  }
  return routine;
}

// The numbers that the routines take after their host strings.
struct Numbers {
  int32_t from = 1, to = 3, decimals = 9;
  HostBool flag1 = 0, flag2 = -1, flag3 = 1;
  double value = 1e6 + 0.5;
};
inline const Numbers kUsualNumbers;

inline std::vector<HostRoutine> hostRoutines(const Numbers& numbers = kUsualNumbers) {
  const auto& [from, to, decimals, flag1, flag2, flag3, value] = numbers;
  const auto localAN = [](Text a, Text b, Text c) { return reference::LocalAN(a, b, c, -1, 0, 0); };
  const auto replaceWide = [](Text a, Text b, Text c) { return Replace(a, b, c); };
  // Null instead of the text itself, which the caller must not release twice.
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
  const auto formatOf = [](int32_t digits) {
    return reference::DecimalFormat(digits < 1 ? 0 : digits - 1);
  };

  std::vector<HostRoutine> all;
  const auto add = [&all](const Path& path, std::vector<HostRoutine> routines) {
    for (HostRoutine& routine : routines) routine.path = &path;
    all.insert(all.end(), routines.begin(), routines.end());
  };
#define WITH_WIDE(host, wide, ...) \
  routineOf(#host, host, wide, reference::wide __VA_OPT__(, ) __VA_ARGS__)
#define HOST_ALONE(host, ...) routineOf(#host, host, nullptr, __VA_ARGS__)
  add(kBuffer, {WITH_WIDE(VB_StrLeft, StrLeft, from),
                WITH_WIDE(VB_StrRight, StrRight, from),
                WITH_WIDE(VB_StrConcat, StrConcat),
                WITH_WIDE(VB_StrLTrim, StrLTrim),
                WITH_WIDE(VB_StrRTrim, StrRTrim),
                WITH_WIDE(VB_StrLRTrim, StrLRTrim),
                WITH_WIDE(VB_RemoveChar, RemoveChar),
                WITH_WIDE(VB_RemoveNonNumericChar, RemoveNonNumericChar),
                HOST_ALONE(StrFromTo, reference::StrFromTo, from, to),
                HOST_ALONE(StrBetween, reference::StrBetween, from, to),
                HOST_ALONE(StrFromChrToChr, reference::StrFromChrToChr),
                HOST_ALONE(VB_LocalAN, localAN),
                WITH_WIDE(VB_LocalAN2, LocalAN, flag1, flag2, flag3),
                WITH_WIDE(VB_LowerFirst, LowerFirst, flag1),
                WITH_WIDE(VB_UpperFirst, UpperFirst),
                WITH_WIDE(VB_PStrP, PStrP),
                HOST_ALONE(VB_BStrB, reference::VB_BStrB),
                WITH_WIDE(VB_QUVARDHTMLProcessor, QUVARDHTMLProcessor),
                WITH_WIDE(Cpp_DecimalFormat, DecimalFormat, decimals),
                WITH_WIDE(VB_OutputFormat, OutputFormat, value),
                WITH_WIDE(VB_OptimalFormat, OptimalFormat, value, decimals, flag2, flag3),
                routineOf("VB_SetFormat", setFormat, nullptr, formatOf, decimals)});
  add(kToNumber, {WITH_WIDE(VB_CommonChar, CommonChar)});
  add(kToNumberOrNull, {WITH_WIDE(ChrCount, cChrCount)});
  add(kBufferAndUnits, {HOST_ALONE(VB_Replace2, reference::VB_Replace2)});
  add(kUnitsOrNull, {HOST_ALONE(VB_RemoveColon, reference::VB_RemoveColon)});
  add(kReplace, {routineOf("VB_Replace", replacedOrNull, replaceWide, reference::Replace)});
  add(kObject,
      {WITH_WIDE(StrBetweenChrAndChr, cStrBetweenChrAndChr), WITH_WIDE(VB_SpStrSp, SpStrSp)});
  add(kCopy, {WITH_WIDE(VB_SingPlural, SingPlural, to)});
  add(kToWideText, {HOST_ALONE(convToWstring, [](Text text) { return text; })});
  add(kHandlesAlone, {routineOf("SwapStr", areSwapped, nullptr, [](Text, Text) { return -1; })});
#undef WITH_WIDE
#undef HOST_ALONE
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
