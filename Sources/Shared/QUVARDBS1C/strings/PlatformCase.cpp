// Case mapping by the platform.
#include "strings/PlatformCase.h"

#include <cstdint>
#ifdef __APPLE__
#include <ctype.h>
#else
#include <cwctype>
#endif

namespace quvard {

wchar_t mapCase(wchar_t unit, LetterCase letterCase) {
  // The platform's functions are defined for characters only.
  if (static_cast<uint32_t>(unit) > 0x10FFFF) return unit;
#ifdef __APPLE__
  // towlower and towupper are inline functions there, which call these two. Direct calls fix the names that
  // the library imports.
  return letterCase == LetterCase::lower ? __tolower(unit) : __toupper(unit);
#else
  const auto character = static_cast<std::wint_t>(unit);
  return static_cast<wchar_t>(letterCase == LetterCase::lower ? std::towlower(character)
                                                              : std::towupper(character));
#endif
}

}  // namespace quvard
