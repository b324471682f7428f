// The one place where the platforms' character functions differ.
#include "strings/PlatformCase.h"

#include <cstdint>
#ifdef __APPLE__
#include <ctype.h>
#else
#include <cwctype>
#endif

namespace quvard {

wchar_t mapCase(wchar_t unit, LetterCase letterCase) {
  // The platform's functions are defined for characters alone.
  if (static_cast<uint32_t>(unit) > 0x10FFFF) return unit;
#ifdef __APPLE__
  // towlower and towupper are inline functions of a header there, which call these two. To call
  // them directly leaves no doubt about what the library imports.
  return letterCase == LetterCase::lower ? __tolower(unit) : __toupper(unit);
#else
  const auto character = static_cast<std::wint_t>(unit);
  return static_cast<wchar_t>(letterCase == LetterCase::lower ? std::towlower(character)
                                                              : std::towupper(character));
#endif
}

}  // namespace quvard
