#ifndef QUVARDBS1C_STRINGS_PLATFORMCASE_H
#define QUVARDBS1C_STRINGS_PLATFORMCASE_H

#include <span>

namespace quvard {

enum class LetterCase { lower, upper };

// Converts a code unit under the locale of the process. A unit without such a form stays.
wchar_t mapCase(wchar_t unit, LetterCase letterCase);

// Converts the first code unit of a text, if there is one.
inline void mapFirst(std::span<wchar_t> text, LetterCase letterCase) {
  if (!text.empty()) text.front() = mapCase(text.front(), letterCase);
}

}  // namespace quvard

#endif
