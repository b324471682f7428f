// A draft is a text that has yet to be written. The core of a routine gives one, and each form of
// the routine has it written where it wants the result: the host form into a TextBuffer, the wide
// form into a std::wstring.
#ifndef QUVARDBS1C_HOST_DRAFT_H
#define QUVARDBS1C_HOST_DRAFT_H

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <cstring>
#include <string_view>

namespace quvard {

// `room` is the most units that the text may have; `write` writes it and returns its end.
template <typename Text>
concept Draft = requires(const Text& text, wchar_t* out) {
  { text.room() } -> std::same_as<std::size_t>;
  { text.write(out) } -> std::same_as<wchar_t*>;
};

// Copies units, 16-bit ones extended with zeros, and returns the end of the copy. Wide units may
// overlap their copy. The pointer of an empty view may be null, which std::memmove does not take.
inline wchar_t* copyUnits(std::wstring_view units, wchar_t* out) {
  if (!units.empty() && out != units.data())
    std::memmove(out, units.data(), units.size() * sizeof(wchar_t));
  return out + units.size();
}
inline wchar_t* copyUnits(std::u16string_view units, wchar_t* out) {
  return std::copy(units.begin(), units.end(), out);
}

}  // namespace quvard

#endif
