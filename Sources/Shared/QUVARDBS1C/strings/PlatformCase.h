#ifndef QUVARDBS1C_STRINGS_PLATFORMCASE_H
#define QUVARDBS1C_STRINGS_PLATFORMCASE_H

namespace quvard {

enum class LetterCase { lower, upper };

// The unit in the given case under the locale of the process; the unit itself where it has none.
wchar_t caseMapped(wchar_t unit, LetterCase letterCase);

}  // namespace quvard

#endif
