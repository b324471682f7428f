#ifndef QUVARDBS1C_HOST_TEXTBUFFER_H
#define QUVARDBS1C_HOST_TEXTBUFFER_H

#include <cstddef>
#include <memory>
#include <span>
#include <string_view>

#include "host/Draft.h"

namespace quvard {

// A text of wide units for the length of a call, with a zero unit after it. Up to 64 units it is
// in place, above on the heap.
class TextBuffer {
 public:
  static constexpr std::size_t kUnitsInPlace = 64;

  explicit TextBuffer(std::wstring_view text) : TextBuffer(text.size()) {
    endAt(copyUnits(text, units_));
  }
  explicit TextBuffer(std::u16string_view text) : TextBuffer(text.size()) {
    endAt(copyUnits(text, units_));
  }
  explicit TextBuffer(const Draft auto& text) : TextBuffer(text.room()) {
    endAt(text.write(units_));
  }
  TextBuffer(const TextBuffer&) = delete;
  TextBuffer& operator=(const TextBuffer&) = delete;

  const wchar_t* c_str() const { return units_; }
  operator std::wstring_view() const { return {units_, size_}; }
  operator std::span<wchar_t>() { return {units_, size_}; }

 private:
  explicit TextBuffer(std::size_t room)
      : onHeap_(room > kUnitsInPlace ? new wchar_t[room + 1] : nullptr),
        units_(onHeap_ ? onHeap_.get() : inPlace_) {}

  void endAt(wchar_t* end) {
    *end = 0;
    size_ = static_cast<std::size_t>(end - units_);
  }

  wchar_t inPlace_[kUnitsInPlace + 1];
  const std::unique_ptr<wchar_t[]> onHeap_;
  wchar_t* const units_;
  std::size_t size_ = 0;
};

}  // namespace quvard

#endif
