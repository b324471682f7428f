// Exhaustive arguments up to a bound: every short text, every integer near a limit.
#ifndef TESTS_SUPPORT_SMALLSCOPES_H
#define TESTS_SUPPORT_SMALLSCOPES_H

#include <vector>

#include "support/Expectations.h"
#include "support/TextReferences.h"

// All texts over an alphabet up to a length, shorter texts first.
inline std::vector<Text> textsUpTo(std::size_t maxSize, const Text& alphabet = L"ab") {
  std::vector<Text> texts{L""};
  for (std::size_t i = 0; texts[i].size() < maxSize; ++i) {
    for (const wchar_t unit : alphabet) texts.push_back(texts[i] + unit);
  }
  return texts;
}

// All 32-bit integers up to a distance from 0, from the lowest, from the highest and from other values.
inline std::vector<int32_t> integersNear(int64_t distance, std::vector<int64_t> centers = {}) {
  centers.insert(centers.end(), {kLowest, 0, kHighest});
  std::vector<int32_t> integers;
  for (const int64_t center : centers) {
    for (int64_t n = center - distance; n <= center + distance; ++n) {
      if (n >= kLowest && n <= kHighest) integers.push_back(static_cast<int32_t>(n));
    }
  }
  return integers;
}

// Calls `check` with each element of the Cartesian product of the sets, until a check fails.
template <typename Check>
void forEach(const Check& check) {
  check();
}
template <typename Check, typename Set, typename... Sets>
void forEach(const Check& check, const Set& set, const Sets&... sets) {
  for (const auto& element : set) {
    if (testing::Test::HasFailure()) return;
    forEach([&](const auto&... others) { check(element, others...); }, sets...);
  }
}

// Expects that a routine and its reference agree on the Cartesian product of the sets.
#define EXPECT_SAME(routine, reference, ...)                        \
  forEach(                                                          \
      [&](const auto&... elements) {                                \
        EXPECT_GIVES(routine, reference(elements...), elements...); \
      },                                                            \
      __VA_ARGS__)

#endif
