#ifndef QUVARDBS1C_HOST_TEXTBUFFER_H
#define QUVARDBS1C_HOST_TEXTBUFFER_H

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <span>
#include <string_view>
#include <utility>

namespace quvard {

// Moves code units, which may overlap their new place, and returns their new end.
inline wchar_t* moveUnits(std::wstring_view units, wchar_t* to) {
  if (!units.empty()) std::memmove(to, units.data(), units.size() * sizeof(wchar_t));
  return to + units.size();
}

// Wide text for the length of a call, with the part of std::wstring's interface that the routines use.
// Text of up to kCapacityInPlace code units needs no memory from the heap.
template <std::size_t kCapacityInPlace>
class BasicTextBuffer {
 public:
  BasicTextBuffer() = default;
  explicit BasicTextBuffer(std::wstring_view text) { append(text); }
  BasicTextBuffer(const BasicTextBuffer&) = delete;
  BasicTextBuffer& operator=(const BasicTextBuffer&) = delete;

  void append(std::wstring_view text) { moveUnits(text, extend(text.size())); }
  void append(std::u16string_view text) {
    std::copy(text.begin(), text.end(), extend(text.size()));
  }
  // Appends text.substr(from, count). A short slice is copied as a whole block: replacements in long
  // texts take a third of the time of copies of varying length.
  template <typename Unit>
  void appendSlice(std::basic_string_view<Unit> text, std::size_t from, std::size_t count) {
    constexpr std::size_t kBlock = 16;
    if (count > kBlock || text.size() - from < kBlock || capacity_ - size_ < kBlock) {
      return append(text.substr(from, count));
    }
    std::copy_n(text.data() + from, kBlock, units_ + size_);
    size_ += count;
  }
  void append(std::size_t count, wchar_t unit) { std::fill_n(extend(count), count, unit); }
  void push_back(wchar_t unit) { *extend(1) = unit; }

  void reserve(std::size_t capacity) {
    if (capacity > capacity_) grow(capacity);
  }
  // Code units beyond the old size are uninitialised.
  void resize(std::size_t size) {
    reserve(size);
    size_ = size;
  }
  void erasePrefix(std::size_t count) {
    moveUnits({units_ + count, size_ - count}, units_);
    size_ -= count;
  }

  std::size_t size() const { return size_; }
  std::size_t capacity() const { return capacity_; }
  wchar_t& operator[](std::size_t index) { return units_[index]; }
  wchar_t* data() { return units_; }
  const wchar_t* c_str() {
    units_[size_] = 0;
    return units_;
  }
  // The same for a part of the text, which overwrites the code unit after the part.
  const wchar_t* c_str(std::wstring_view part) {
    if (part.empty()) return L"";
    units_[part.data() + part.size() - units_] = 0;
    return part.data();
  }
  operator std::wstring_view() const { return {units_, size_}; }
  operator std::span<wchar_t>() { return {units_, size_}; }

 private:
  // Adds `count` code units to the size and returns the first of them.
  wchar_t* extend(std::size_t count) {
    if (count > capacity_ - size_) grow(std::max(size_ + count, 2 * capacity_));
    wchar_t* const end = units_ + size_;
    size_ += count;
    return end;
  }

  // Not inlined, so that the compiler keeps the code around it small.
  [[gnu::noinline]] void grow(std::size_t capacity) {
    std::unique_ptr<wchar_t[]> larger(new wchar_t[capacity + 1]);
    std::copy_n(units_, size_, larger.get());
    onHeap_ = std::move(larger);
    units_ = onHeap_.get();
    capacity_ = capacity;
  }

  wchar_t inPlace_[kCapacityInPlace + 1];  // one more for the null terminator
  std::unique_ptr<wchar_t[]> onHeap_;
  wchar_t* units_ = inPlace_;
  std::size_t capacity_ = kCapacityInPlace;
  std::size_t size_ = 0;
};

inline constexpr std::size_t kUnitsInPlace = 64;

using TextBuffer = BasicTextBuffer<kUnitsInPlace>;

inline void appendSlice(auto& output, auto text, std::size_t from, std::size_t count) {
  if constexpr (requires { output.appendSlice(text, from, count); }) {
    output.appendSlice(text, from, count);
  } else {
    output.append(text.substr(from, count));
  }
}

}  // namespace quvard

#endif
