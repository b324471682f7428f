// How the wide forms make their results, most of them in their own copy of a text.
#ifndef QUVARDBS1C_STRINGS_WIDEFORM_H
#define QUVARDBS1C_STRINGS_WIDEFORM_H

#include <cstddef>
#include <string>
#include <string_view>

#include "host/Draft.h"

namespace quvard {

inline std::wstring toWstring(const Draft auto& text) {
  std::wstring result(text.room(), L'\0');
  result.resize(static_cast<std::size_t>(text.write(result.data()) - result.data()));
  return result;
}

// Writes a draft over the text that it reads; it never writes more units than it has read.
inline void overwrite(std::wstring& text, const Draft auto& draft) {
  text.resize(static_cast<std::size_t>(draft.write(text.data()) - text.data()));
}

// Leaves nothing but the slice, which is a view of the text itself.
inline void cutTo(std::wstring& text, std::wstring_view slice) {
  if (slice.empty()) return text.clear();
  const auto start = static_cast<std::size_t>(slice.data() - text.data());
  text.resize(start + slice.size());
  text.erase(0, start);
}

}  // namespace quvard

#endif
