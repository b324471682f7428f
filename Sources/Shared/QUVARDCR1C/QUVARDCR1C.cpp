#include "QUVARDCR1C.h"

#include <cstdint>
#include <cwchar>
#include <memory>

#include "ThreadBuffer.h"

namespace {

constexpr std::uint32_t kLastBmp = 0xFFFF;
constexpr std::uint32_t kLastCodePoint = 0x10FFFF;
constexpr char16_t kReplacementCharacter = 0xFFFD;

std::uint32_t valueOf(wchar_t unit) { return static_cast<std::uint32_t>(unit); }

bool isSupplementary(std::uint32_t value) { return value > kLastBmp && value <= kLastCodePoint; }

// The general way out, for text that holds a unit beyond 16 bits.
BSTR allocateWithPairs(const wchar_t* units, std::size_t length) {
  std::size_t pairs = 0;
  for (std::size_t i = 0; i < length; ++i) pairs += isSupplementary(valueOf(units[i])) ? 1U : 0U;

  const BSTR result = new char16_t[length + pairs + 1];
  char16_t* out = result;
  for (std::size_t i = 0; i < length; ++i) {
    const std::uint32_t value = valueOf(units[i]);
    if (isSupplementary(value)) {
      *out++ = static_cast<char16_t>(0xD800 + ((value - 0x10000) >> 10));
      *out++ = static_cast<char16_t>(0xDC00 + ((value - 0x10000) & 0x3FF));
    } else {
      *out++ = value > kLastCodePoint ? kReplacementCharacter : static_cast<char16_t>(value);
    }
  }
  *out = 0;
  return result;
}

}  // namespace

BSTR SysAllocString16(const char16_t* units) {
  const std::size_t length = units == nullptr ? 0 : wcslen16(units);
  const BSTR result = new char16_t[length + 1];
  std::char_traits<char16_t>::copy(result, units, length);
  result[length] = 0;
  return result;
}

std::size_t wcslen16(const char16_t* units) {
  // A unit may only be read once the one before it is known not to end the text, so units cannot be
  // read many at once. In steps of eight, the tests are all that is left.
  constexpr std::size_t kStep = 8;
  for (std::size_t start = 0;; start += kStep) {
    for (std::size_t i = start; i < start + kStep; ++i) {
      if (units[i] == 0) return i;
    }
  }
}

void releaseBSTR(BSTR handle) { delete[] handle; }

wchar_t* CW162W32(BSTR handle) {
  const std::size_t length = wcslen16(handle);
  wchar_t* const wide = threadBuffer(length + 1);
  for (std::size_t i = 0; i < length; ++i) wide[i] = static_cast<wchar_t>(handle[i]);
  wide[length] = 0;
  return wide;
}

BSTR SysAllocString2(const wchar_t* units) {
  const std::size_t length = std::wcslen(units);
  std::unique_ptr<char16_t[]> result(new char16_t[length + 1]);
  char16_t* const out = result.get();
  std::uint32_t seen = 0;
  for (std::size_t i = 0; i < length; ++i) {
    seen |= valueOf(units[i]);
    out[i] = static_cast<char16_t>(units[i]);
  }
  if (seen > kLastBmp) {
    result.reset();
    return allocateWithPairs(units, length);
  }
  out[length] = 0;
  return result.release();
}

std::wstring convertBSTRtoWstring(BSTR& handle) {
  if (handle == nullptr) return {};
  return std::wstring(handle, handle + wcslen16(handle));
}

BSTR convertWstringToBSTR(std::wstring text) { return SysAllocString2(text.c_str()); }
