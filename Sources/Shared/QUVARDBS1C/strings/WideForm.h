#ifndef QUVARDBS1C_STRINGS_WIDEFORM_H
#define QUVARDBS1C_STRINGS_WIDEFORM_H

#include <cstddef>
#include <string>
#include <string_view>

namespace quvard {

// Reduces `text` to `slice`, which is a part of it.
inline void cutTo(std::wstring& text, std::wstring_view slice) {
  if (slice.empty()) return text.clear();
  const auto start = static_cast<std::size_t>(slice.data() - text.data());
  text.resize(start + slice.size());
  text.erase(0, start);
}

}  // namespace quvard

#endif
