#ifndef QUVARDBS1C_STRINGS_REPLACEMENT_H
#define QUVARDBS1C_STRINGS_REPLACEMENT_H

#include <cstddef>
#include <string_view>

#include "host/TextBuffer.h"
#include "strings/PatternSearch.h"

namespace quvard {

// A text with every occurrence of a pattern replaced. The units of the text may be wider than those
// of the pattern and the replacement.
template <typename TextUnit, typename Unit>
class Replaced {
 public:
  using Text = std::basic_string_view<TextUnit>;
  using View = std::basic_string_view<Unit>;

  Replaced(Text text, View pattern, View replacement)
      : text_(text),
        pattern_(pattern == replacement ? View() : pattern),
        replacement_(replacement),
        search_(pattern_) {}

  bool mayGrow() const { return replacement_.size() > pattern_.size(); }

  // The number of units of a result that may grow.
  std::size_t size() const { return text_.size() + search_.count(text_) * growth(); }

  // Occurrences are counted only where a buffer in place may be too small for the most there can be.
  std::size_t room() const {
    if (!mayGrow() || pattern_.empty()) return text_.size();
    if (text_.size() <= kUnitsInPlace && growth() <= kUnitsInPlace) {
      const std::size_t most = text_.size() + text_.size() / pattern_.size() * growth();
      if (most <= kUnitsInPlace) return most;
    }
    return size();
  }

  // `out` may be where the text is, unless the result may grow.
  wchar_t* write(wchar_t* out) const {
    const wchar_t* const start = out;
    const bool isOver = static_cast<const void*>(start) == text_.data();
    std::size_t from = 0;
    search_.forEach(text_, [&](std::size_t at) {
      // Over the text, a whole block may be written once the result is a block behind what is read.
      const std::size_t written = static_cast<std::size_t>(out - start);
      const bool isFree = !isOver || from - written >= kBlockUnits;
      out = isFree ? copyGap(from, at, out) : copyUnits(text_.substr(from, at - from), out);
      for (const Unit unit : replacement_) *out++ = static_cast<wchar_t>(unit);
      from = at + pattern_.size();
    });
    return copyUnits(text_.substr(from), out);
  }

 private:
  std::size_t growth() const { return replacement_.size() - pattern_.size(); }

  // Copies what is between two occurrences. Most gaps are short, and to copy a whole block is faster
  // than to copy a number of units that varies. What is copied too much is written over later, or is
  // beyond the end of the result. There is room for it: at least as much is left as of the text.
  wchar_t* copyGap(std::size_t from, std::size_t to, wchar_t* out) const {
    if (to - from > kBlockUnits || text_.size() - from < kBlockUnits) {
      return copyUnits(text_.substr(from, to - from), out);
    }
    for (std::size_t i = 0; i < kBlockUnits; ++i) out[i] = static_cast<wchar_t>(text_[from + i]);
    return out + (to - from);
  }

  Text text_;
  View pattern_;
  View replacement_;
  PatternSearch<Unit> search_;
};

}  // namespace quvard

#endif
