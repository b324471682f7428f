#ifndef QUVARDBS1C_STRINGS_PLATFORMCASE_H
#define QUVARDBS1C_STRINGS_PLATFORMCASE_H

#include <span>

namespace quvard {

enum class LetterCase { lower, upper };

// The unit in the given case under the locale of the process; the unit itself where it has none.
wchar_t mapCase(wchar_t unit, LetterCase letterCase);

// The same for the first unit of a text, if it has one.
inline void mapFirst(std::span<wchar_t> text, LetterCase letterCase) {
  if (!text.empty()) text.front() = mapCase(text.front(), letterCase);
}

}  // namespace quvard

#endif
