// Every host routine with the host strings that it takes, for tests that go over the whole
// interface.
#ifndef TESTS_SUPPORT_HOSTROUTINES_H
#define TESTS_SUPPORT_HOSTROUTINES_H

#include <functional>
#include <string>
#include <vector>

#include "support/HostStrings.h"

using Texts = std::vector<std::wstring>;
using Handles = const BSTR*;

// The way across the boundary, which tells the services that are called.
enum class Path {
  buffer,        // CW162W32 for each string, SysAllocString2 for the result
  bufferNoNull,  // the same, but with a null handle nothing is called
  object,        // convertBSTRtoWstring for each string, convertWstringToBSTR for the result
  unit,  // wcslen16 for each string, SysAllocString2 for the result; nothing for a null text
  bufferAndUnit,  // the first string as on the buffer path, the others as on the unit path
  none,           // SysAllocString16 alone
};

struct HostRoutine {
  std::string name;
  std::size_t strings;  // number of host strings it takes
  Path path;
  bool givesString;
  std::function<std::wstring(Handles)> call;  // its result as text, released
  std::function<std::wstring(const Texts&)>
      expected;  // the same by other means; null reads as empty
};

// What VB_Replace gives: its argument itself is not released.
inline std::wstring takenUnlessArgument(BSTR result, BSTR argument) {
  return result == argument ? L"(argument)" : taken(result);
}

inline std::wstring replacedStepwise(std::wstring text, const std::wstring& pattern,
                                     const std::wstring& replacement) {
  if (pattern.empty()) return text;
  for (std::size_t at = 0; (at = text.find(pattern, at)) != text.npos; at += replacement.size()) {
    text = text.substr(0, at) + replacement + text.substr(at + pattern.size());
  }
  return text;
}

inline const std::vector<HostRoutine>& hostRoutines() {
  static const std::vector<HostRoutine> routines{
      {"VB_StrLeft", 1, Path::buffer, true, [](Handles s) { return taken(VB_StrLeft(s[0], 1)); },
       [](const Texts& t) { return t[0].substr(0, 1); }},
      {"VB_StrRight", 1, Path::buffer, true, [](Handles s) { return taken(VB_StrRight(s[0], 1)); },
       [](const Texts& t) { return StrRight(t[0], 1); }},
      {"VB_StrConcat", 6, Path::buffer, true,
       [](Handles s) { return taken(VB_StrConcat(s[0], s[1], s[2], s[3], s[4], s[5])); },
       [](const Texts& t) { return t[0] + t[1] + t[2] + t[3] + t[4] + t[5]; }},
      {"VB_StrLTrim", 1, Path::buffer, true, [](Handles s) { return taken(VB_StrLTrim(s[0])); },
       [](const Texts& t) { return StrLTrim(t[0]); }},
      {"VB_StrRTrim", 1, Path::buffer, true, [](Handles s) { return taken(VB_StrRTrim(s[0])); },
       [](const Texts& t) { return StrRTrim(t[0]); }},
      {"VB_StrLRTrim", 1, Path::buffer, true, [](Handles s) { return taken(VB_StrLRTrim(s[0])); },
       [](const Texts& t) { return StrLRTrim(t[0]); }},
      {"VB_RemoveChar", 2, Path::buffer, true,
       [](Handles s) { return taken(VB_RemoveChar(s[0], s[1])); },
       [](const Texts& t) { return RemoveChar(t[0], t[1]); }},
      {"VB_RemoveNonNumericChar", 1, Path::buffer, true,
       [](Handles s) { return taken(VB_RemoveNonNumericChar(s[0])); },
       [](const Texts& t) { return RemoveNonNumericChar(t[0]); }},
      {"VB_RemoveColon", 1, Path::unit, true, [](Handles s) { return taken(VB_RemoveColon(s[0])); },
       [](const Texts& t) { return RemoveChar(t[0], L":"); }},
      {"VB_CommonChar", 2, Path::buffer, false,
       [](Handles s) { return std::to_wstring(VB_CommonChar(s[0], s[1])); },
       [](const Texts& t) { return std::to_wstring(CommonChar(t[0], t[1])); }},
      {"ChrCount", 2, Path::bufferNoNull, false,
       [](Handles s) { return std::to_wstring(ChrCount(s[0], s[1])); },
       [](const Texts& t) { return std::to_wstring(cChrCount(t[0], t[1])); }},
      {"StrFromTo", 1, Path::buffer, true, [](Handles s) { return taken(StrFromTo(s[0], 1, 1)); },
       [](const Texts& t) { return t[0].substr(0, 1); }},
      {"StrBetween", 1, Path::buffer, true, [](Handles s) { return taken(StrBetween(s[0], 1, 3)); },
       [](const Texts& t) { return t[0].size() < 3 ? L"" : t[0].substr(1, 1); }},
      {"StrFromChrToChr", 3, Path::buffer, true,
       [](Handles s) { return taken(StrFromChrToChr(s[0], s[1], s[2])); },
       [](const Texts& t) {
         const bool found = t[0].find(t[1]) != t[0].npos && t[0].find(t[2]) != t[0].npos;
         return found ? t[0].substr(0, 1) : L"";
       }},
      {"StrBetweenChrAndChr", 3, Path::object, true,
       [](Handles s) { return taken(StrBetweenChrAndChr(s[0], s[1], s[2])); },
       [](const Texts& t) { return cStrBetweenChrAndChr(t[0], t[1], t[2]); }},
      {"VB_Replace", 3, Path::unit, true,
       [](Handles s) { return takenUnlessArgument(VB_Replace(s[0], s[1], s[2]), s[0]); },
       [](const Texts& t) { return replacedStepwise(t[0], t[1], t[2]); }},
      {"VB_Replace2", 5, Path::bufferAndUnit, true,
       [](Handles s) { return taken(VB_Replace2(s[0], s[1], s[2], s[3], s[4])); },
       [](const Texts& t) {
         return replacedStepwise(replacedStepwise(t[0], t[1], t[2]), t[3], t[4]);
       }},
      {"VB_LocalAN", 3, Path::buffer, true,
       [](Handles s) { return taken(VB_LocalAN(s[0], s[1], s[2])); },
       [](const Texts& t) { return LocalAN(t[0], t[1], t[2], -1, 0, 0); }},
      {"VB_LocalAN2", 3, Path::buffer, true,
       [](Handles s) { return taken(VB_LocalAN2(s[0], s[1], s[2], 0, -1, 1)); },
       [](const Texts& t) { return LocalAN(t[0], t[1], t[2], 0, -1, 1); }},
      {"VB_LowerFirst", 2, Path::buffer, true,
       [](Handles s) { return taken(VB_LowerFirst(s[0], s[1], 0)); },
       [](const Texts& t) { return LowerFirst(t[0], t[1], 0); }},
      {"VB_UpperFirst", 1, Path::buffer, true, [](Handles s) { return taken(VB_UpperFirst(s[0])); },
       [](const Texts& t) { return UpperFirst(t[0]); }},
      {"VB_SpStrSp", 1, Path::object, true, [](Handles s) { return taken(VB_SpStrSp(s[0])); },
       [](const Texts& t) { return L" " + t[0] + L" "; }},
      {"VB_PStrP", 1, Path::buffer, true, [](Handles s) { return taken(VB_PStrP(s[0])); },
       [](const Texts& t) { return L"(" + t[0] + L")"; }},
      {"VB_BStrB", 1, Path::buffer, true, [](Handles s) { return taken(VB_BStrB(s[0])); },
       [](const Texts& t) { return L"[" + t[0] + L"]"; }},
      {"VB_SingPlural", 1, Path::none, true,
       [](Handles s) { return taken(VB_SingPlural(nullptr, s[0], 2)); },
       [](const Texts& t) { return t[0]; }},
      {"VB_QUVARDHTMLProcessor", 1, Path::buffer, true,
       [](Handles s) { return taken(VB_QUVARDHTMLProcessor(s[0])); },
       [](const Texts& t) { return QUVARDHTMLProcessor(t[0]); }},
      {"VB_SetFormat", 0, Path::buffer, true,
       [](Handles) {
         BSTR formats[1] = {};
         VB_SetFormat(formats, 1, 5, -1);
         return taken(formats[0]);
       },
       [](const Texts&) { return L"0.0000"; }},
      {"Cpp_DecimalFormat", 0, Path::buffer, true,
       [](Handles) { return taken(Cpp_DecimalFormat(9)); },
       [](const Texts&) { return L"0.000000000"; }},
      {"VB_OutputFormat", 0, Path::buffer, true,
       [](Handles) { return taken(VB_OutputFormat(0.25)); },
       [](const Texts&) { return L"0.###################"; }},
      {"VB_OptimalFormat", 0, Path::buffer, true,
       [](Handles) { return taken(VB_OptimalFormat(1e6 + 0.5, 4, -1, -1)); },
       [](const Texts&) { return L"0.0000E+0"; }},
  };
  return routines;
}

#endif
