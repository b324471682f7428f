// Search for one pattern in texts, in time linear in the text whatever text and pattern hold, and
// without memory of its own.
#ifndef QUVARDBS1C_STRINGS_PATTERNSEARCH_H
#define QUVARDBS1C_STRINGS_PATTERNSEARCH_H

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>

#include "strings/UnitBlocks.h"

namespace quvard {

// Search for a pattern of two units or more whose time does not grow with the pattern: the two-way
// algorithm (Crochemore and Perrin, 1991). The pattern is cut in two. Its right part is compared
// first, forward, and a unit that differs there moves the search on past all units compared. Then
// the left part is compared, and a unit that differs there moves the search on by a whole period.
template <typename Unit>
class TwoWaySearch {
 public:
  using View = std::basic_string_view<Unit>;

  explicit TwoWaySearch(View pattern) : pattern_(pattern) {
    // Of the two greatest suffixes, by the order of units and by its reverse, the shorter one cuts
    // the pattern where its period shows on either side.
    const Suffix rising = greatestSuffix(std::less<Unit>());
    const Suffix falling = greatestSuffix(std::greater<Unit>());
    const Suffix& shorter = rising.start > falling.start ? rising : falling;
    cut_ = shorter.start;
    period_ = shorter.period;
    const bool repeats = period_ + cut_ <= pattern.size() &&
                         pattern.substr(0, cut_) == pattern.substr(period_, cut_);
    if (repeats) {
      overlap_ = pattern.size() - period_;
    } else {
      period_ = std::max(cut_, pattern.size() - cut_) + 1;
    }
  }

  std::size_t find(View text, std::size_t from) const {
    const std::size_t size = pattern_.size();
    std::size_t known = 0;  // so many units at the start of the pattern match already
    for (std::size_t at = from; text.size() >= size && at <= text.size() - size;) {
      std::size_t i = std::max(cut_, known);
      while (i < size && pattern_[i] == text[at + i]) ++i;
      if (i < size) {
        at += i - cut_ + 1;
        known = 0;
        continue;
      }
      i = cut_;
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
  Suffix greatestSuffix(Less less) const {
    Suffix suffix{0, 1};
    std::size_t other = 1;  // start of the suffix that is compared with it
    for (std::size_t length = 0; other + length < pattern_.size();) {
      const Unit ofSuffix = pattern_[suffix.start + length];
      const Unit ofOther = pattern_[other + length];
      if (less(ofOther, ofSuffix)) {
        other += length + 1;
        length = 0;
        suffix.period = other - suffix.start;
      } else if (less(ofSuffix, ofOther)) {
        suffix = {other, 1};
        ++other;
        length = 0;
      } else if (++length == suffix.period) {
        other += length;
        length = 0;
      }
    }
    return suffix;
  }

  View pattern_;
  std::size_t cut_ = 0;
  std::size_t period_ = 1;
  std::size_t overlap_ = 0;  // of two occurrences one period apart, if the whole pattern has it
};

template <typename Unit>
class PatternSearch {
 public:
  using View = std::basic_string_view<Unit>;

  // A pattern up to this length wastes at most its few units at each position of a text.
  static constexpr std::size_t kShort = 16;

  // The pattern outlives the search. An empty one is found everywhere.
  explicit PatternSearch(View pattern)
      : pattern_(pattern), long_(pattern.size() > kShort ? pattern : View()) {}

  // The position of the first occurrence at or after `from`, or View::npos.
  std::size_t find(View text, std::size_t from) const {
    if (pattern_.size() > kShort) return long_.find(text, from);
    if (pattern_.empty()) return from;
    if (text.size() < pattern_.size()) return View::npos;
    const std::size_t starts = text.size() - pattern_.size() + 1;  // where one may begin
    if (starts < kBlockUnits) return findStepwise(text, from, starts);
    for (std::size_t at = from; at < starts; at += kBlockUnits) {
      // The last block begins earlier, to end with the text.
      const std::size_t block = std::min(at, starts - kBlockUnits);
      std::uint32_t candidates =
          matches(text.data() + block, pattern_.front()) &
          matches(text.data() + block + pattern_.size() - 1, pattern_.back());
      candidates &= ~0U << (at - block);
      for (; candidates != 0; candidates &= candidates - 1) {
        const std::size_t found = block + static_cast<std::size_t>(std::countr_zero(candidates));
        if (isAt(text, found)) return found;
      }
    }
    return View::npos;
  }

  // The number of occurrences from left to right, without overlap.
  std::size_t count(View text) const {
    if (pattern_.empty()) return 0;
    if (pattern_.size() == 1) return countOf(text, pattern_.front());
    std::size_t count = 0;
    for (std::size_t at = 0; (at = find(text, at)) != View::npos; at += pattern_.size()) ++count;
    return count;
  }

 private:
  std::size_t findStepwise(View text, std::size_t from, std::size_t starts) const {
    for (std::size_t at = from; at < starts; ++at) {
      if (text[at] == pattern_.front() && isAt(text, at)) return at;
    }
    return View::npos;
  }

  bool isAt(View text, std::size_t at) const {
    std::size_t i = 1;
    while (i < pattern_.size() && text[at + i] == pattern_[i]) ++i;
    return i == pattern_.size();
  }

  View pattern_;
  TwoWaySearch<Unit> long_;
};

}  // namespace quvard

#endif
