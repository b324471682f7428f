// Loops over whole blocks of units, without a branch for each unit.
#ifndef QUVARDBS1C_STRINGS_UNITBLOCKS_H
#define QUVARDBS1C_STRINGS_UNITBLOCKS_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace quvard {

inline constexpr std::size_t kBlockUnits = 16;

// A block has a bit for each of its units, the lowest for the first: whether it equals `sought`.
template <typename Unit>
std::uint32_t plainMatches(const Unit* block, Unit sought) {
  std::uint32_t bits = 0;
  for (std::size_t i = 0; i < kBlockUnits; ++i) bits |= (block[i] == sought ? 1U : 0U) << i;
  return bits;
}

#ifdef __SSE2__

// The same with the vector instructions that every 64-bit x86 has.
inline __m128i vectorAt(const void* units) {
  return _mm_loadu_si128(static_cast<const __m128i*>(units));
}
inline std::uint32_t matches(const char16_t* block, char16_t sought) {
  const __m128i all = _mm_set1_epi16(static_cast<short>(sought));
  return static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_packs_epi16(
      _mm_cmpeq_epi16(vectorAt(block), all), _mm_cmpeq_epi16(vectorAt(block + 8), all))));
}
inline std::uint32_t matches(const wchar_t* block, wchar_t sought) {
  const __m128i all = _mm_set1_epi32(sought);
  const auto eight = [all](const wchar_t* units) {
    return _mm_packs_epi32(_mm_cmpeq_epi32(vectorAt(units), all),
                           _mm_cmpeq_epi32(vectorAt(units + 4), all));
  };
  return static_cast<std::uint32_t>(
      _mm_movemask_epi8(_mm_packs_epi16(eight(block), eight(block + 8))));
}

#else

template <typename Unit>
std::uint32_t matches(const Unit* block, Unit sought) {
  return plainMatches(block, sought);
}

#endif

template <typename Unit>
bool contains(const Unit* units, std::size_t length, Unit sought) {
  Unit found = 0;
  for (std::size_t i = 0; i < length; ++i) found |= units[i] == sought ? 1 : 0;
  return found != 0;
}

template <typename Unit>
std::size_t countOf(std::basic_string_view<Unit> text, Unit sought) {
  // The count of a stretch fits the narrowest unit.
  constexpr std::size_t kStretch = 0x8000;
  std::size_t count = 0;
  for (std::size_t start = 0; start < text.size(); start += kStretch) {
    const std::size_t end = std::min(start + kStretch, text.size());
    Unit ofStretch = 0;
    for (std::size_t i = start; i < end; ++i) {
      ofStretch = static_cast<Unit>(ofStretch + (text[i] == sought ? 1 : 0));
    }
    count += static_cast<std::size_t>(ofStretch);
  }
  return count;
}

}  // namespace quvard

#endif
