#ifndef QUVARDBS1C_STRINGS_REPLACEMENT_H
#define QUVARDBS1C_STRINGS_REPLACEMENT_H

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "host/TextBuffer.h"
#include "strings/PatternSearch.h"

namespace quvard {

// Replaces every occurrence of a pattern.
template <typename Unit>
class Replacer {
 public:
  using View = std::basic_string_view<Unit>;

  // Pattern and replacement must outlive the Replacer.
  Replacer(View pattern, View replacement) : search_(pattern), replacement_(replacement) {}

  // Appends the result for `text` to `output`.
  template <typename TextUnit>
  void append(std::basic_string_view<TextUnit> text, auto& output) const {
    output.append(text.substr(appendUpToLastOccurrence(text, output)));
  }

  // Same, but only up to the last occurrence. Returns the position after it.
  template <typename TextUnit>
  std::size_t appendUpToLastOccurrence(std::basic_string_view<TextUnit> text, auto& output) const {
    std::size_t next = 0;
    search_.forEach(text, [&](std::size_t at) {
      appendSlice(output, text, next, at - next);
      output.append(replacement_);
      next = at + search_.patternSize();
    });
    return next;
  }

  std::size_t patternSize() const { return search_.patternSize(); }

 private:
  PatternSearch<Unit> search_;
  View replacement_;
};

// An output that replaces in the text appended to it, and appends the result to another output. Only a
// window of the text is in memory.
template <typename Unit>
class ReplacingOutput {
 public:
  ReplacingOutput(const Replacer<Unit>& replacer, TextBuffer& output)
      : replacer_(replacer), output_(output) {
    // flush() removes at least half of a full window, so that the time is linear.
    window_.reserve(2 * replacer.patternSize());
  }

  template <typename TextUnit>
  void append(std::basic_string_view<TextUnit> text) {
    while (!text.empty()) {
      if (window_.size() == window_.capacity())
        flush(std::max<std::size_t>(replacer_.patternSize(), 1) - 1);
      const std::size_t count = std::min(text.size(), window_.capacity() - window_.size());
      window_.append(text.substr(0, count));
      text.remove_prefix(count);
    }
  }

  void finish() { flush(0); }

 private:
  // Replaces in the window and removes it, except its last `rest` code units, where an occurrence that is not
  // complete may begin.
  void flush(std::size_t rest) {
    const std::wstring_view window = window_;
    const std::size_t next = replacer_.appendUpToLastOccurrence(window, output_);
    const std::size_t end = std::max(next, window.size() - std::min(rest, window.size()));
    output_.append(window.substr(next, end - next));
    window_.erasePrefix(end);
  }

  static constexpr std::size_t kWindowInPlace = 256;
  const Replacer<Unit>& replacer_;
  TextBuffer& output_;
  BasicTextBuffer<kWindowInPlace> window_;
};

}  // namespace quvard

#endif
