// Loops over units without a branch for each, which the compiler makes into a few wide operations.
#ifndef QUVARDBS1C_STRINGS_UNITBLOCKS_H
#define QUVARDBS1C_STRINGS_UNITBLOCKS_H

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace quvard {

// Texts are looked through in blocks of this many units.
inline constexpr std::size_t kBlockUnits = 16;

template <typename Unit>
bool holds(const Unit* block, std::size_t length, Unit sought) {
  Unit found = 0;
  for (std::size_t i = 0; i < length; ++i) found |= block[i] == sought ? 1 : 0;
  return found != 0;
}

template <typename Unit>
std::size_t countOf(std::basic_string_view<Unit> text, Unit sought) {
  // The count of a stretch fits the narrowest unit.
  constexpr std::size_t kStretch = 0x8000;
  std::size_t count = 0;
  for (std::size_t start = 0; start < text.size(); start += kStretch) {
    const std::size_t end = std::min(start + kStretch, text.size());
    Unit ofStretch = 0;
    for (std::size_t i = start; i < end; ++i) {
      ofStretch = static_cast<Unit>(ofStretch + (text[i] == sought ? 1 : 0));
    }
    count += static_cast<std::size_t>(ofStretch);
  }
  return count;
}

// Copies the units that are to stay, as wide units, and returns the end of the copy, which may lie
// in the text itself.
template <typename Unit, typename Keep>
wchar_t* copyKept(std::basic_string_view<Unit> text, wchar_t* out, Keep keep) {
  for (const Unit unit : text) {
    *out = static_cast<wchar_t>(unit);
    out += keep(unit) ? 1 : 0;
  }
  return out;
}

}  // namespace quvard

#endif
