// How texts cross the host boundary. Host routines take in their texts in the order of the arguments,
// with one service call each. The order of service calls never changes.
#ifndef QUVARDBS1C_HOST_BOUNDARY_H
#define QUVARDBS1C_HOST_BOUNDARY_H

#include <cstddef>
#include <cwchar>
#include <string_view>

#include "QUVARDBS1C.h"
#include "QUVARDCR1C.h"
#include "host/TextBuffer.h"

namespace quvard {

// The length of a text that was written a moment ago. std::wcslen reads whole vectors and waits until the
// processor has stored the text; VB_StrLeft of 30 code units takes 14 % longer with it.
inline std::size_t lengthOfNewText(const wchar_t* text) {
  constexpr std::size_t kFirst = 64;
  constexpr std::size_t kStep = 4;  // for the compiler to unroll
  for (std::size_t start = 0; start < kFirst; start += kStep) {
    for (std::size_t i = start; i < start + kStep; ++i) {
      if (text[i] == 0) return i;
    }
  }
  return kFirst + std::wcslen(text + kFirst);
}

// The text of a host string in the sibling library's buffer: valid until the next service call.
inline std::wstring_view wideText(BSTR handle) {
  if (handle == nullptr) return {};
  const wchar_t* const text = CW162W32(handle);
  return {text, lengthOfNewText(text)};
}

// The code units of a host string, in place.
inline std::u16string_view codeUnits(BSTR handle) {
  return handle == nullptr ? std::u16string_view() : std::u16string_view(handle, wcslen16(handle));
}

inline BSTR newHostString(TextBuffer& text) { return SysAllocString2(text.c_str()); }
// From a part of the text, without another copy of it.
inline BSTR newHostString(TextBuffer& text, std::wstring_view part) {
  return SysAllocString2(text.c_str(part));
}
// A view may be part of the sibling library's buffer, which is not null-terminated there.
inline BSTR newHostString(std::wstring_view text) {
  return SysAllocString2(TextBuffer(text).c_str());
}

}  // namespace quvard

#endif
