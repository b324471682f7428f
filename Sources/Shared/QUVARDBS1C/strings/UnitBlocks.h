// Compares many code units with one.
#ifndef QUVARDBS1C_STRINGS_UNITBLOCKS_H
#define QUVARDBS1C_STRINGS_UNITBLOCKS_H

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace quvard {

inline constexpr std::size_t kBlockUnits = 16;

// Bit i is set if `block[i] == unit`.
template <typename Unit>
uint32_t plainBlockMatches(const Unit* block, Unit unit) {
  uint32_t bits = 0;
  for (std::size_t i = 0; i < kBlockUnits; ++i) bits |= (block[i] == unit ? 1U : 0U) << i;
  return bits;
}

#ifdef __SSE2__

// Same, with the vector instructions of every 64-bit x86 processor.
inline __m128i vectorAt(const void* units) {
  return _mm_loadu_si128(static_cast<const __m128i*>(units));
}
inline uint32_t blockMatches(const char16_t* block, char16_t unit) {
  const __m128i all = _mm_set1_epi16(static_cast<short>(unit));
  return static_cast<uint32_t>(_mm_movemask_epi8(_mm_packs_epi16(
      _mm_cmpeq_epi16(vectorAt(block), all), _mm_cmpeq_epi16(vectorAt(block + 8), all))));
}
inline uint32_t blockMatches(const wchar_t* block, wchar_t unit) {
  const __m128i all = _mm_set1_epi32(unit);
  const auto eight = [all](const wchar_t* units) {
    return _mm_packs_epi32(_mm_cmpeq_epi32(vectorAt(units), all),
                           _mm_cmpeq_epi32(vectorAt(units + 4), all));
  };
  return static_cast<uint32_t>(_mm_movemask_epi8(_mm_packs_epi16(eight(block), eight(block + 8))));
}

#else

template <typename Unit>
uint32_t blockMatches(const Unit* block, Unit unit) {
  return plainBlockMatches(block, unit);
}

#endif

// Maximum size of the text that matches() compares: the bits of its result.
inline constexpr std::size_t kMatchedUnits = 64;

// Bit i is set if `units[i] == unit`. Precondition: units.size() <= kMatchedUnits.
template <typename Unit>
uint64_t matches(std::basic_string_view<Unit> units, Unit unit) {
  uint64_t bits = 0;
  if (units.size() < kBlockUnits) {
    for (std::size_t i = 0; i < units.size(); ++i) {
      bits |= (units[i] == unit ? uint64_t{1} : 0U) << i;
    }
    return bits;
  }
  // The last block ends at the end of the text, so it may overlap the one before.
  const std::size_t last = units.size() - kBlockUnits;
  for (std::size_t block = 0; block < last; block += kBlockUnits) {
    bits |= uint64_t{blockMatches(units.data() + block, unit)} << block;
  }
  return bits | uint64_t{blockMatches(units.data() + last, unit)} << last;
}

template <typename Unit>
std::size_t countOf(std::basic_string_view<Unit> text, Unit unit) {
  std::size_t count = 0;
  for (std::size_t start = 0; start < text.size(); start += kMatchedUnits) {
    count +=
        static_cast<std::size_t>(std::popcount(matches(text.substr(start, kMatchedUnits), unit)));
  }
  return count;
}

}  // namespace quvard

#endif
