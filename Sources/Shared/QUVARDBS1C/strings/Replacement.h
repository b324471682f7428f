#ifndef QUVARDBS1C_STRINGS_REPLACEMENT_H
#define QUVARDBS1C_STRINGS_REPLACEMENT_H

#include <string>
#include <string_view>

namespace quvard {

// Replace() without copies of the pattern and the replacement.
std::wstring replaced(std::wstring text, std::wstring_view pattern, std::wstring_view replacement);

}  // namespace quvard

#endif
