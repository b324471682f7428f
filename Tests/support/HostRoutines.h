// Every host routine with the host strings that it takes, for tests that go over the whole
// interface.
#ifndef TESTS_SUPPORT_HOSTROUTINES_H
#define TESTS_SUPPORT_HOSTROUTINES_H

#include <functional>
#include <string>
#include <vector>

#include "support/HostStrings.h"

using Texts = std::vector<std::wstring>;

struct HostRoutine {
  std::string name;
  std::size_t strings;                                 // number of host strings it takes
  std::function<std::wstring(const BSTR*)> call;       // its result as text, released
  std::function<std::wstring(const Texts&)> expected;  // the same from the wide routine
};

inline const std::vector<HostRoutine>& hostRoutines() {
  static const std::vector<HostRoutine> routines{
      {"VB_StrLeft", 1, [](const BSTR* s) { return taken(VB_StrLeft(s[0], 1)); },
       [](const Texts& t) { return StrLeft(t[0], 1); }},
      {"VB_StrRight", 1, [](const BSTR* s) { return taken(VB_StrRight(s[0], 1)); },
       [](const Texts& t) { return StrRight(t[0], 1); }},
      {"VB_StrConcat", 6,
       [](const BSTR* s) { return taken(VB_StrConcat(s[0], s[1], s[2], s[3], s[4], s[5])); },
       [](const Texts& t) { return t[0] + t[1] + t[2] + t[3] + t[4] + t[5]; }},
      {"VB_StrLTrim", 1, [](const BSTR* s) { return taken(VB_StrLTrim(s[0])); },
       [](const Texts& t) { return StrLTrim(t[0]); }},
      {"VB_StrRTrim", 1, [](const BSTR* s) { return taken(VB_StrRTrim(s[0])); },
       [](const Texts& t) { return StrRTrim(t[0]); }},
      {"VB_StrLRTrim", 1, [](const BSTR* s) { return taken(VB_StrLRTrim(s[0])); },
       [](const Texts& t) { return StrLRTrim(t[0]); }},
      {"VB_LocalAN", 3, [](const BSTR* s) { return taken(VB_LocalAN(s[0], s[1], s[2])); },
       [](const Texts& t) { return LocalAN(t[0], t[1], t[2], -1, 0, 0); }},
      {"VB_LocalAN2", 3,
       [](const BSTR* s) { return taken(VB_LocalAN2(s[0], s[1], s[2], 0, -1, 1)); },
       [](const Texts& t) { return LocalAN(t[0], t[1], t[2], 0, -1, 1); }},
      {"VB_LowerFirst", 2, [](const BSTR* s) { return taken(VB_LowerFirst(s[0], s[1], 0)); },
       [](const Texts& t) { return LowerFirst(t[0], t[1], 0); }},
      {"VB_UpperFirst", 1, [](const BSTR* s) { return taken(VB_UpperFirst(s[0])); },
       [](const Texts& t) { return UpperFirst(t[0]); }},
  };
  return routines;
}

#endif
