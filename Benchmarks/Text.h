// The texts that the benchmarks work on.
#ifndef BENCHMARKS_TEXT_H
#define BENCHMARKS_TEXT_H

#include <cstdint>
#include <deque>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "QUVARDBS1C.h"
#include "QUVARDCR1C.h"

namespace benchmarks {

struct Release {
  void operator()(BSTR handle) const { releaseBSTR(handle); }
};
using Owned = std::unique_ptr<char16_t, Release>;

// A host string that is there as long as the program, and the text that it was made with, which it
// still holds unless a job writes over its own arguments.
struct KeptText {
  std::u16string text;
  Owned handle;
};

inline std::deque<KeptText>& keptTexts() {
  static std::deque<KeptText> all;
  return all;
}

inline BSTR keep(std::u16string_view text) {
  std::u16string units(text);
  Owned handle(SysAllocString16(units.c_str()));
  keptTexts().push_back({std::move(units), std::move(handle)});
  return keptTexts().back().handle.get();
}

inline std::wstring widen(std::u16string_view text) { return {text.begin(), text.end()}; }

// `unit` repeated to at least `length` units, and then `end`.
inline std::u16string repeat(std::u16string_view unit, std::size_t length,
                             std::u16string_view end = u"") {
  std::u16string text;
  while (text.size() < length) text += unit;
  return text += end;
}

// Letters and blanks as they come in a text, with one of the tokens at irregular distances, of ten
// units on average, so that no branch on a unit can be foreseen. The same text at every call.
inline std::u16string mixText(std::size_t length, const std::vector<std::u16string_view>& tokens) {
  constexpr std::u16string_view kLetters = u"eeeeettttaaaooiinnsshhrrdlucmfwypvbgkEATN          ";
  std::mt19937 random(1);
  const auto below = [&random](std::size_t end) { return random() % end; };
  std::u16string text;
  while (text.size() < length) {
    for (std::size_t gap = 1 + below(17); gap > 0; --gap) text += kLetters[below(kLetters.size())];
    text += tokens[below(tokens.size())];
  }
  return text;
}

}  // namespace benchmarks

#endif
