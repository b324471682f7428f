#ifndef QUVARDBS1C_HOST_TEXTBUFFER_H
#define QUVARDBS1C_HOST_TEXTBUFFER_H

#include <algorithm>
#include <cstddef>
#include <memory>
#include <span>
#include <string_view>
#include <utility>

#include "host/Draft.h"

namespace quvard {

// Texts of up to this many units need no memory from the heap.
inline constexpr std::size_t kUnitsInPlace = 64;

// The units of a text that the sibling library has just written. A read of many units at once would
// wait for the processor to have stored them, so the first ones are read one by one, in steps that the
// compiler unrolls.
inline std::wstring_view viewOf(const wchar_t* text) {
  constexpr std::size_t kFirst = 64;
  constexpr std::size_t kStep = 4;
  for (std::size_t start = 0; start < kFirst; start += kStep) {
    for (std::size_t i = start; i < start + kStep; ++i) {
      if (text[i] == 0) return {text, i};
    }
  }
  return {text, kFirst + std::char_traits<wchar_t>::length(text + kFirst)};
}

// A text of wide units for the length of a call, with a zero unit after it: in place up to a number
// of units, on the heap above.
template <std::size_t unitsInPlace>
class BasicTextBuffer {
 public:
  BasicTextBuffer() { endAt(units_); }
  explicit BasicTextBuffer(const wchar_t* text) { append(text); }
  explicit BasicTextBuffer(std::wstring_view text) {
    reserve(text.size());
    endAt(copyUnits(text, units_));
  }
  explicit BasicTextBuffer(const Draft auto& text) {
    reserve(text.room());
    endAt(text.write(units_));
  }
  BasicTextBuffer(const BasicTextBuffer&) = delete;
  BasicTextBuffer& operator=(const BasicTextBuffer&) = delete;

  // Adds the units of a text that ends at its first zero unit.
  void append(const wchar_t* text) {
    // The first ones are copied one by one while the end is sought, for the reason told above.
    constexpr std::size_t kStep = 8;
    for (; size_ + kStep <= unitsInPlace; text += kStep) {
      wchar_t* const out = units_ + size_;
      for (std::size_t i = 0; i < kStep; ++i) {
        out[i] = text[i];
        if (text[i] == 0) {
          size_ += i;
          return;
        }
      }
      size_ += kStep;
    }
    const std::wstring_view rest(text);
    reserve(size_ + rest.size());
    endAt(copyUnits(rest, units_ + size_));
  }

  const wchar_t* c_str() const { return units_; }
  operator std::wstring_view() const { return {units_, size_}; }
  operator std::span<wchar_t>() { return {units_, size_}; }

 private:
  void reserve(std::size_t room) {
    if (room <= room_) return;
    room = std::max(room, 2 * room_);
    std::unique_ptr<wchar_t[]> larger(new wchar_t[room + 1]);
    copyUnits({units_, size_}, larger.get());
    onHeap_ = std::move(larger);
    units_ = onHeap_.get();
    room_ = room;
  }

  void endAt(wchar_t* end) {
    *end = 0;
    size_ = static_cast<std::size_t>(end - units_);
  }

  wchar_t inPlace_[unitsInPlace + 1];
  std::unique_ptr<wchar_t[]> onHeap_;
  wchar_t* units_ = inPlace_;
  std::size_t room_ = unitsInPlace;
  std::size_t size_ = 0;
};

using TextBuffer = BasicTextBuffer<kUnitsInPlace>;

}  // namespace quvard

#endif
