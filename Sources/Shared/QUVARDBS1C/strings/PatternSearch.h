// Search for one pattern in texts, in time linear in the text whatever text and pattern hold, and
// without memory from the heap.
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

// Search for a pattern of two units or more whose time does not grow with the pattern: the two-way
// algorithm (Crochemore and Perrin, 1991). The pattern is cut in two. Its right part is compared
// first, forward, and a unit that differs there moves the search on past all units compared. Then
// the left part is compared, and a unit that differs there moves the search on by a whole period.
template <typename Unit>
class TwoWaySearch {
 public:
  using View = std::basic_string_view<Unit>;

  explicit TwoWaySearch(View pattern) : pattern_(pattern) {
    // The cut is before the shorter of the two greatest suffixes, in the order of the units and in
    // the reverse order. So cut, no repetition around the cut is shorter than the period.
    const Suffix rising = greatestSuffix(std::less<Unit>());
    const Suffix falling = greatestSuffix(std::greater<Unit>());
    const Suffix& shorter = rising.start > falling.start ? rising : falling;
    cut_ = shorter.start;
    period_ = shorter.period;
    // The suffix is no shorter than its period, so that both runs compared are in the pattern.
    if (pattern.substr(0, cut_) == pattern.substr(period_, cut_)) {
      overlap_ = pattern.size() - period_;
    } else {
      period_ = std::max(cut_, pattern.size() - cut_) + 1;
    }
  }

  template <typename TextUnit>
  std::size_t find(std::basic_string_view<TextUnit> text, std::size_t from) const {
    const std::size_t size = pattern_.size();
    if (text.size() < size) return View::npos;
    std::size_t known = 0;  // number of units at the start of the pattern that match already
    for (std::size_t at = from; at <= text.size() - size;) {
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
    Suffix greatest{0, 1};
    std::size_t other = 1;  // start of the suffix that is compared with the greatest so far
    for (std::size_t length = 0; other + length < pattern_.size();) {
      const Unit ofGreatest = pattern_[greatest.start + length];
      const Unit ofOther = pattern_[other + length];
      if (less(ofOther, ofGreatest)) {
        other += length + 1;
        length = 0;
        greatest.period = other - greatest.start;
      } else if (less(ofGreatest, ofOther)) {
        greatest = {other, 1};
        ++other;
        length = 0;
      } else if (++length == greatest.period) {
        other += length;
        length = 0;
      }
    }
    return greatest;
  }

  View pattern_;
  std::size_t cut_ = 0;
  std::size_t period_ = 1;
  std::size_t overlap_ = 0;  // of two occurrences a period apart, if the whole pattern is periodic
};

// A pattern up to this length wastes at most its few units at each position of a text.
inline constexpr std::size_t kShortPattern = 16;

// The units of the texts may be wider than those of the pattern.
template <typename Unit>
class PatternSearch {
 public:
  using View = std::basic_string_view<Unit>;

  // The pattern outlives the search.
  explicit PatternSearch(View pattern) : pattern_(pattern) {
    if (pattern.size() > kShortPattern) long_.emplace(pattern);
  }

  std::size_t patternSize() const { return pattern_.size(); }

  // The position of the first occurrence, or npos. An empty pattern is found at once.
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

  // Calls `visit` with the position of each occurrence, from left to right and without overlap. An
  // empty pattern has none.
  template <typename TextUnit, typename Visit>
  void forEach(std::basic_string_view<TextUnit> text, Visit visit) const {
    if (pattern_.empty()) return;
    search(text, [&](std::size_t at) {
      visit(at);
      return at + pattern_.size();
    });
  }

  // The same for a pattern that is not empty, but occurrences that overlap the one before are visited
  // too.
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
  // Goes on where `visit` tells; npos ends the search.
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
    const std::size_t starts = text.size() - last;  // where an occurrence may begin
    for (std::size_t stretch = 0; stretch < starts; stretch += kMatchedUnits) {
      // Where the first and the last unit of the pattern match, the others are compared.
      const std::size_t length = std::min(starts - stretch, kMatchedUnits);
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

  // Whether an occurrence is where its first and its last unit are.
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
