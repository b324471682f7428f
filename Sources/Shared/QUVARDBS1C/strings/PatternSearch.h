// Search for a pattern, in time linear in the text for any pattern, without memory from the heap.
#ifndef QUVARDBS1C_STRINGS_PATTERNSEARCH_H
#define QUVARDBS1C_STRINGS_PATTERNSEARCH_H

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include "strings/UnitBlocks.h"

namespace quvard {

// Two-way search (Crochemore and Perrin, 1991) for a pattern of at least two code units. The pattern is split
// at a critical position. The right part is compared first, forward; a mismatch shifts the pattern past the
// compared units. Then the left part is compared, backward; a mismatch shifts the pattern by its period.
template <typename Unit>
class TwoWaySearch {
 public:
  using View = std::basic_string_view<Unit>;

  explicit TwoWaySearch(View pattern) : pattern_(pattern) {
    // The shorter of the maximal suffixes under both orders of the units begins at a critical position.
    const Suffix byLess = maximalSuffix(std::less<Unit>());
    const Suffix byGreater = maximalSuffix(std::greater<Unit>());
    const Suffix& shorter = byLess.start > byGreater.start ? byLess : byGreater;
    critical_ = shorter.start;
    period_ = shorter.period;
    // In range, because the suffix is at least as long as its period.
    if (pattern.substr(0, critical_) == pattern.substr(period_, critical_)) {
      overlap_ = pattern.size() - period_;
    } else {
      period_ = std::max(critical_, pattern.size() - critical_) + 1;
    }
  }

  template <typename TextUnit>
  std::size_t find(std::basic_string_view<TextUnit> text, std::size_t from) const {
    const std::size_t size = pattern_.size();
    if (text.size() < size) return View::npos;
    std::size_t known = 0;  // length of the prefix of the pattern that is known to match
    for (std::size_t at = from; at <= text.size() - size;) {
      std::size_t i = std::max(critical_, known);
      while (i < size && pattern_[i] == text[at + i]) ++i;
      if (i < size) {
        at += i - critical_ + 1;
        known = 0;
        continue;
      }
      i = critical_;
      while (i > known && pattern_[i - 1] == text[at + i - 1]) --i;
      if (i <= known) return at;
      at += period_;
      known = overlap_;
    }
    return View::npos;
  }

 private:
  struct Suffix {
    std::size_t start;
    std::size_t period;
  };

  template <typename Less>
  Suffix maximalSuffix(Less less) const {
    Suffix maximal{0, 1};
    std::size_t candidate = 1;  // start of the suffix compared with the maximal one so far
    for (std::size_t length = 0; candidate + length < pattern_.size();) {
      const Unit maximalUnit = pattern_[maximal.start + length];
      const Unit candidateUnit = pattern_[candidate + length];
      if (less(candidateUnit, maximalUnit)) {
        candidate += length + 1;
        length = 0;
        maximal.period = candidate - maximal.start;
      } else if (less(maximalUnit, candidateUnit)) {
        maximal = {candidate, 1};
        ++candidate;
        length = 0;
      } else if (++length == maximal.period) {
        candidate += length;
        length = 0;
      }
    }
    return maximal;
  }

  View pattern_;
  std::size_t critical_ = 0;
  std::size_t period_ = 1;   // of the pattern, or a shift that misses no occurrence
  std::size_t overlap_ = 0;  // length of the prefix that still matches after a shift by the period
};

// Up to this length a pattern is compared at each candidate position, which costs few comparisons.
inline constexpr std::size_t kShortPattern = 16;

// The code units of the text may be wider than those of the pattern.
template <typename Unit>
class PatternSearch {
 public:
  using View = std::basic_string_view<Unit>;

  // The pattern must outlive the search.
  explicit PatternSearch(View pattern) : pattern_(pattern) {
    if (pattern.size() > kShortPattern) long_.emplace(pattern);
  }

  std::size_t patternSize() const { return pattern_.size(); }

  // Returns the position of the first occurrence, or npos. An empty pattern is found at 0.
  template <typename TextUnit>
  std::size_t find(std::basic_string_view<TextUnit> text) const {
    if (pattern_.empty()) return 0;
    std::size_t found = View::npos;
    search(text, [&found](std::size_t at) {
      found = at;
      return View::npos;
    });
    return found;
  }

  // Calls `visit` with the position of each occurrence, from left to right and without overlap. An empty
  // pattern does not occur.
  template <typename TextUnit, typename Visit>
  void forEach(std::basic_string_view<TextUnit> text, Visit visit) const {
    if (pattern_.empty()) return;
    search(text, [&](std::size_t at) {
      visit(at);
      return at + pattern_.size();
    });
  }

  // Same, with overlapping occurrences. Precondition: the pattern is not empty.
  template <typename TextUnit, typename Visit>
  void forEachOverlapping(std::basic_string_view<TextUnit> text, Visit visit) const {
    search(text, [&](std::size_t at) {
      visit(at);
      return at + 1;
    });
  }

  template <typename TextUnit>
  std::size_t count(std::basic_string_view<TextUnit> text) const {
    if (pattern_.size() == 1) return countOf<TextUnit>(text, pattern_.front());
    std::size_t count = 0;
    forEach(text, [&count](std::size_t) { ++count; });
    return count;
  }

 private:
  // Continues at the position that `visit` returns; npos ends the search.
  template <typename TextUnit, typename Visit>
  void search(std::basic_string_view<TextUnit> text, Visit visit) const {
    std::size_t from = 0;
    if (long_) {
      while (from != View::npos && (from = long_->find(text, from)) != View::npos) {
        from = visit(from);
      }
      return;
    }
    if (text.size() < pattern_.size()) return;
    const std::size_t last = pattern_.size() - 1;
    const std::size_t positions = text.size() - last;  // where an occurrence can begin
    for (std::size_t stretch = 0; stretch < positions; stretch += kMatchedUnits) {
      // Candidates: positions where the first and the last unit of the pattern match.
      const std::size_t length = std::min(positions - stretch, kMatchedUnits);
      uint64_t candidates = matches<TextUnit>(text.substr(stretch, length), pattern_.front());
      if (last > 0) {
        candidates &= matches<TextUnit>(text.substr(stretch + last, length), pattern_.back());
      }
      for (; candidates != 0; candidates &= candidates - 1) {
        const std::size_t at = stretch + static_cast<std::size_t>(std::countr_zero(candidates));
        if (at < from || !isAt(text, at)) continue;
        from = visit(at);
        if (from == View::npos) return;
      }
    }
  }

  // Precondition: the first and the last unit of the pattern match at `at`.
  template <typename TextUnit>
  bool isAt(std::basic_string_view<TextUnit> text, std::size_t at) const {
    for (std::size_t i = 1; i + 1 < pattern_.size(); ++i) {
      if (text[at + i] != pattern_[i]) return false;
    }
    return true;
  }

  View pattern_;
  std::optional<TwoWaySearch<Unit>> long_;
};

}  // namespace quvard

#endif
