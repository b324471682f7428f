// Every text of a few units and every integer close to a limit, for tests that leave nothing out
// below a bound.
#ifndef TESTS_SUPPORT_SMALLSCOPES_H
#define TESTS_SUPPORT_SMALLSCOPES_H

#include <vector>

#include "support/Expectations.h"
#include "support/Stepwise.h"

// Every text over some units up to a length, the short ones first.
inline std::vector<Text> textsUpTo(std::size_t longest, const Text& units = L"ab") {
  std::vector<Text> texts{L""};
  for (std::size_t i = 0; texts[i].size() < longest; ++i) {
    for (const wchar_t unit : units) texts.push_back(texts[i] + unit);
  }
  return texts;
}

// Every 32-bit integer up to a distance from 0, from the least and from the greatest one, and from
// other places.
inline std::vector<int32_t> integersNear(int64_t distance, std::vector<int64_t> places = {}) {
  places.insert(places.end(), {kLowest, 0, kHighest});
  std::vector<int32_t> integers;
  for (const int64_t place : places) {
    for (int64_t n = place - distance; n <= place + distance; ++n) {
      if (n >= kLowest && n <= kHighest) integers.push_back(static_cast<int32_t>(n));
    }
  }
  return integers;
}

// Calls a check with each combination of one element of each set, until one fails.
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

// Expects that a routine gives what a reference gives for each combination.
#define EXPECT_SAME(routine, reference, ...)                        \
  forEach(                                                          \
      [&](const auto&... elements) {                                \
        EXPECT_GIVES(routine, reference(elements...), elements...); \
      },                                                            \
      __VA_ARGS__)

#endif
