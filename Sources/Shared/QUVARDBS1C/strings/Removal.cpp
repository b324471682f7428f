#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "host/Boundary.h"
#include "strings/PatternSearch.h"

using quvard::moveUnits;
using quvard::TextBuffer;
using quvard::wideText;

namespace {

// Writes the code units that satisfy `keep` to `out`, which may be the text itself, and returns their
// number. Writes every unit and overwrites those that do not satisfy it: a branch would be unpredictable.
std::size_t copyIf(auto text, wchar_t* out, auto keep) {
  const wchar_t* const start = out;
#ifndef __clang__
// A short loop takes up to a third longer where it happens to cross a cache line.
#pragma GCC unroll 4
#endif
  for (const auto unit : text) {
    *out = static_cast<wchar_t>(unit);
    out += keep(unit) ? 1 : 0;
  }
  return static_cast<std::size_t>(out - start);
}

std::size_t copyWithout(wchar_t removed, auto text, wchar_t* out) {
  return copyIf(text, out, [removed](auto unit) { return static_cast<wchar_t>(unit) != removed; });
}

std::size_t copyDigits(std::wstring_view text, wchar_t* out) {
  return copyIf(text, out, [](wchar_t unit) { return unit >= L'0' && unit <= L'9'; });
}

// The text is `[start, keptEnd)` + gap + `[next, ...)`. Tests whether an occurrence of `chars` begins at `at`
// and spans the gap. Precondition: keptEnd - at < chars.size().
bool spansGap(const wchar_t* at, const wchar_t* keptEnd, const wchar_t* next,
              std::wstring_view chars) {
  const auto overlap = static_cast<std::size_t>(keptEnd - at);
  const std::wstring_view after(next, chars.size() - overlap);
  // Compares the last unit first: in a run of equal units it is often the only one that differs.
  return after.back() == chars.back() && std::equal(at, keptEnd, chars.begin()) &&
         after == chars.substr(overlap);
}

// Removes the first unit of the leftmost occurrence that spans the gap until there is none. Returns the new
// end of the first part.
wchar_t* removeAcrossGap(wchar_t* start, wchar_t* keptEnd, wchar_t* next, std::wstring_view chars) {
  const auto maxOverlap = static_cast<std::ptrdiff_t>(chars.size()) - 1;
  const wchar_t* const oldNext = next;
  wchar_t* at = keptEnd - std::min(keptEnd - start, maxOverlap);
  for (;;) {
    if (at == keptEnd) {
      if (next == oldNext) return keptEnd;
      *keptEnd++ = *next++;
    }
    if (*at != chars.front() || !spansGap(at, keptEnd, next, chars)) {
      ++at;
      continue;
    }
    // Moves the units between the removed one and the gap behind the gap, so that a removal further left
    // does not move them again.
    next = std::copy_backward(at + 1, keptEnd, next);
    keptEnd = at;
    at -= std::min(at - start, maxOverlap);
  }
}

// Removes the first unit of the leftmost occurrence of `chars` until there is none, and returns the new
// size. Removals do not change the text behind the gap, so the positions found there stay valid.
std::size_t removeFirstUnits(std::span<wchar_t> text, std::wstring_view chars) {
  wchar_t* const start = text.data();
  wchar_t* keptEnd = start;
  wchar_t* next = start;
  const std::wstring_view input(start, text.size());
  quvard::PatternSearch<wchar_t>(chars).forEachOverlapping(input, [&](std::size_t at) {
    keptEnd = moveUnits({next, start + at}, keptEnd);
    next = start + at + 1;
    keptEnd = removeAcrossGap(start, keptEnd, next, chars);
  });
  return static_cast<std::size_t>(moveUnits({next, start + text.size()}, keptEnd) - start);
}

// KMP state: length of the longest prefix of `chars` that ends here (Knuth, Morris and Pratt, 1977).
using State = uint32_t;

// Returns the state after one more unit. `borders[n]`: length of the longest proper border of
// `chars[0, n)`, for n >= 1.
State nextState(State state, wchar_t unit, std::wstring_view chars, const State* borders) {
  while (state > 0 && chars[state] != unit) state = borders[state];
  return state + (chars[state] == unit ? 1 : 0);
}

// Precondition: `chars` is not empty.
void findBorders(std::wstring_view chars, State* borders) {
  borders[1] = 0;
  for (std::size_t i = 1; i < chars.size(); ++i) {
    borders[i + 1] = nextState(borders[i], chars[i], chars, borders);
  }
}

// The tail is `chars` without its first unit. `overlaps[state]`: if the tail follows a text in this state,
// the number of units before the tail in the leftmost occurrence that begins there, or 0 if there is none.
//
// `chars[0, r)` + tail begins with `chars` if the tail begins with its own suffix `chars[r, size)`. This holds
// for r = 1, and otherwise if size - r is the length of a border of the tail. Where it does not hold for
// r = state, the border of the state decides.
// Precondition: `scratch` has a capacity of chars.size().
void findOverlaps(std::wstring_view chars, const State* borders, State* overlaps, State* scratch) {
  const std::wstring_view tail = chars.substr(1);
  std::fill_n(overlaps, chars.size(), 0);
  overlaps[1] = 1;
  findBorders(tail, scratch);
  for (State border = scratch[tail.size()]; border > 0; border = scratch[border]) {
    const std::size_t overlap = chars.size() - border;
    overlaps[overlap] = static_cast<State>(overlap);
  }
  for (std::size_t state = 1; state < chars.size(); ++state) {
    if (overlaps[state] == 0) overlaps[state] = overlaps[borders[state]];
  }
}

// Same as removeFirstUnits, in linear time also for a long `chars`. After a removal the tail follows the gap.
// So the state at the gap alone decides whether an occurrence spans the gap. If none does, the state
// after the tail is the longest border of `chars`.
std::size_t removeFirstUnitsOfLong(std::span<wchar_t> text, std::wstring_view chars) {
  const std::size_t size = chars.size();
  if (text.size() < size) return text.size();
  const std::wstring_view tail = chars.substr(1);

  // One array for all, on the stack for short texts.
  State inPlace[3 * (quvard::kUnitsInPlace + 1)];
  std::unique_ptr<State[]> onHeap;
  const std::size_t capacity = (text.size() + 1) + 2 * (size + 1);
  if (capacity > std::size(inPlace)) onHeap.reset(new State[capacity]);
  State* const states = onHeap ? onHeap.get() : inPlace;  // states[n]: after text[0, n)
  State* const borders = states + text.size() + 1;
  State* const overlaps = borders + size + 1;
  findBorders(chars, borders);
  findOverlaps(chars, borders, overlaps, states);
  states[0] = 0;

  // The text is `[0, kept)` + gap + `[next, ...)`.
  std::size_t kept = 0;
  std::size_t next = 0;
  // `[tailStart, tailEnd)` is the tail of the last removal. Its units and states in `[tailWritten, tailEnd)`
  // are not written until they are needed.
  std::size_t tailStart = 0;
  std::size_t tailWritten = 0;
  std::size_t tailEnd = 0;
  const auto writeTail = [&](std::size_t end) {
    for (; tailWritten < std::min(end, tailEnd); ++tailWritten) {
      text[tailWritten] = tail[tailWritten - tailStart];
      states[tailWritten + 1] = nextState(states[tailWritten], text[tailWritten], chars, borders);
    }
  };

  State state = 0;
  while (next < text.size()) {
    text[kept] = text[next++];
    state = nextState(state, text[kept], chars, borders);
    states[++kept] = state;
    if (state < size) continue;

    std::size_t gap = kept - size;
    writeTail(gap);
    while (const State overlap = overlaps[states[gap]]) {
      gap -= overlap;
      // The overlap without its first unit becomes the start of the tail. As many units at the end of the old
      // tail are read again.
      const std::wstring_view rest = tail.substr(size - overlap);
      next -= rest.size();
      moveUnits(rest, text.data() + next);
    }
    tailStart = tailWritten = gap;
    tailEnd = kept = gap + tail.size();
    state = borders[size];
  }
  writeTail(kept);
  return kept;
}

// Applies RemoveChar in place and returns the new size.
std::size_t removeChars(std::span<wchar_t> text, std::wstring_view chars) {
  if (chars.empty()) return text.size();
  if (chars.size() == 1) {
    return copyWithout(chars.front(), text, text.data());
  }
  return chars.size() <= quvard::kShortPattern ? removeFirstUnits(text, chars)
                                               : removeFirstUnitsOfLong(text, chars);
}

}  // namespace

std::wstring RemoveChar(std::wstring s, std::wstring chars) {
  s.resize(removeChars(s, chars));
  return s;
}

std::wstring RemoveColon(std::wstring s) {
  s.resize(copyWithout(L':', std::wstring_view(s), s.data()));
  return StrLRTrim(std::move(s));
}

std::wstring RemoveSemicolon(std::wstring s) {
  s.resize(copyWithout(L';', std::wstring_view(s), s.data()));
  return StrLRTrim(std::move(s));
}

std::wstring RemoveNonNumericChar(std::wstring s) {
  s.resize(copyDigits(s, s.data()));
  return s;
}

BSTR VB_RemoveChar(BSTR s, BSTR chars) {
  TextBuffer text(wideText(s));
  text.resize(removeChars(text, wideText(chars)));
  return newHostString(text);
}

BSTR VB_RemoveNonNumericChar(BSTR s) {
  const std::wstring_view text = wideText(s);
  TextBuffer digits;
  digits.resize(text.size());
  digits.resize(copyDigits(text, digits.data()));
  return newHostString(digits);
}

BSTR VB_RemoveColon(BSTR s) {
  if (s == nullptr) return nullptr;
  const std::u16string_view text = quvard::codeUnits(s);
  TextBuffer result;
  result.resize(text.size());
  result.resize(copyWithout(L':', text, result.data()));
  return newHostString(result);
}
