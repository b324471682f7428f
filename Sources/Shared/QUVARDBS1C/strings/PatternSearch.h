// Search for one pattern in texts, in time linear in the text whatever text and pattern hold.
#ifndef QUVARDBS1C_STRINGS_PATTERNSEARCH_H
#define QUVARDBS1C_STRINGS_PATTERNSEARCH_H

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace quvard {

// How far a pattern has been matched, step by step (Knuth, Morris, Pratt, 1977).
template <typename Unit>
class PrefixMatcher {
 public:
  // The pattern has at least one unit and outlives the matcher.
  explicit PrefixMatcher(std::basic_string_view<Unit> pattern)
      : pattern_(pattern), border_(pattern.size(), 0) {
    for (std::size_t i = 1; i < pattern.size(); ++i)
      border_[i] = advanced(border_[i - 1], pattern[i]);
  }

  // The length of the longest prefix of the pattern that ends with `unit`, given that of the units
  // before it, which is below the pattern's length.
  std::uint32_t advanced(std::uint32_t matched, Unit unit) const {
    while (matched > 0 && pattern_[matched] != unit) matched = border_[matched - 1];
    return pattern_[matched] == unit ? matched + 1 : matched;
  }

 private:
  std::basic_string_view<Unit> pattern_;
  std::vector<std::uint32_t>
      border_;  // for each prefix, its longest proper prefix that also ends it
};

template <typename Unit>
class PatternSearch {
 public:
  using View = std::basic_string_view<Unit>;

  // A pattern up to this length wastes at most its few units at each position of a text.
  static constexpr std::size_t kShort = 16;

  // The pattern outlives the search. An empty one is found everywhere.
  explicit PatternSearch(View pattern)
      : pattern_(pattern), matcher_(pattern.size() > kShort ? pattern : View()) {}

  // The position of the first occurrence at or after `from`, or View::npos.
  std::size_t find(View text, std::size_t from) const {
    if (pattern_.size() <= kShort) return text.find(pattern_, from);
    std::uint32_t matched = 0;
    for (std::size_t i = from; i < text.size(); ++i) {
      matched = matcher_.advanced(matched, text[i]);
      if (matched == pattern_.size()) return i + 1 - matched;
    }
    return View::npos;
  }

 private:
  View pattern_;
  PrefixMatcher<Unit> matcher_;
};

}  // namespace quvard

#endif
