#include "QUVARDCR1C.h"

#include <bit>
#include <cstdint>
#include <cwchar>
#include <memory>

#include "ThreadBuffer.h"

#ifdef __has_feature
#define QUVARD_HAS_FEATURE(name) __has_feature(name)
#else
#define QUVARD_HAS_FEATURE(name) 0
#endif
// The sanitizers do not allow reads beyond a text, although their values have no effect.
#if defined(__SSE2__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) && \
    !QUVARD_HAS_FEATURE(address_sanitizer) && !QUVARD_HAS_FEATURE(memory_sanitizer) &&      \
    !QUVARD_HAS_FEATURE(thread_sanitizer)
#define QUVARD_READS_BLOCKS
#include <emmintrin.h>
#endif

namespace {

constexpr std::uint32_t kLastBmp = 0xFFFF;
constexpr std::uint32_t kLastCodePoint = 0x10FFFF;
constexpr char16_t kReplacementCharacter = 0xFFFD;

std::uint32_t valueOf(wchar_t unit) { return static_cast<std::uint32_t>(unit); }

bool isSupplementary(std::uint32_t value) { return value > kLastBmp && value <= kLastCodePoint; }

constexpr std::size_t kUnitsOfShortText = 8;

#ifdef QUVARD_READS_BLOCKS
// The length of a text that has no zero unit among its first kUnitsOfShortText. Reads aligned blocks, as
// the string functions of the C library do: a page consists of whole blocks, so no block reaches into a
// page that holds no part of the text. The first block begins inside the text.
std::size_t lengthOfLongText(const char16_t* units) {
  constexpr std::size_t kBlockUnits = sizeof(__m128i) / sizeof(char16_t);
  const char16_t* block = units + kUnitsOfShortText;
  block -= reinterpret_cast<std::uintptr_t>(block) / sizeof(char16_t) % kBlockUnits;
  for (;; block += kBlockUnits) {
    const __m128i read = _mm_load_si128(reinterpret_cast<const __m128i*>(block));
    // Two bits for each code unit, set if it is zero.
    const int zeros = _mm_movemask_epi8(_mm_cmpeq_epi16(read, _mm_setzero_si128()));
    if (zeros == 0) continue;
    const int firstZero = std::countr_zero(static_cast<unsigned>(zeros)) / 2;
    return static_cast<std::size_t>(block + firstZero - units);
  }
}
#else
std::size_t lengthOfLongText(const char16_t* units) {
  constexpr std::size_t kStep = 8;  // for the compiler to unroll
  for (std::size_t start = kUnitsOfShortText;; start += kStep) {
    for (std::size_t i = start; i < start + kStep; ++i) {
      if (units[i] == 0) return i;
    }
  }
}
#endif

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
  // The processor predicts where this loop ends, while the length from a block depends on its values.
  for (std::size_t i = 0; i < kUnitsOfShortText; ++i) {
    if (units[i] == 0) return i;
  }
  return lengthOfLongText(units);
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
#ifndef __clang__
// A short loop takes up to twice as long where it happens to cross a cache line.
#pragma GCC unroll 4
#endif
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
