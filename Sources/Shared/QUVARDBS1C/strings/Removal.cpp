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
// number. Each unit is written, and overwritten by the next one if it is not kept: without a branch that
// the processor cannot predict.
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

// Whether the units from `at` to `kept`, of which `chars` has more, and then those from `next` on are
// `chars`.
bool isAcross(const wchar_t* at, const wchar_t* kept, const wchar_t* next,
              std::wstring_view chars) {
  const auto before = static_cast<std::size_t>(kept - at);
  const std::wstring_view after(next, chars.size() - before);
  // The last unit first: within a run of one unit it is often the only one that differs.
  return after.back() == chars.back() && std::equal(at, kept, chars.begin()) &&
         after == chars.substr(before);
}

// The first unit of an occurrence is missing between the units kept and those from `next` on, so
// another one may reach over this gap. Takes the first unit out of the leftmost occurrence that begins
// before the gap until there is none, and returns the end of the units kept.
wchar_t* removeAcrossGap(wchar_t* start, wchar_t* kept, wchar_t* next, std::wstring_view chars) {
  const auto reach = static_cast<std::ptrdiff_t>(chars.size()) - 1;
  const wchar_t* const firstNext = next;
  wchar_t* at = kept - std::min(kept - start, reach);
  for (;;) {
    if (at == kept) {
      if (next == firstNext) return kept;
      *kept++ = *next++;
    }
    if (*at != chars.front() || !isAcross(at, kept, next, chars)) {
      ++at;
      continue;
    }
    // The units between the one taken out and the gap go to its other side for now, so that the next
    // one taken out, further to the left, has not to move them again.
    next = std::copy_backward(at + 1, kept, next);
    kept = at;
    at -= std::min(at - start, reach);
  }
}

// Takes the first unit out of the leftmost occurrence of `chars` until there is none, and returns the
// new size. The units after a gap stay as they are, so what is found among them stays found.
std::size_t removeFirstUnits(std::span<wchar_t> text, std::wstring_view chars) {
  wchar_t* const start = text.data();
  wchar_t* kept = start;
  wchar_t* next = start;
  const std::wstring_view searched(start, text.size());
  quvard::PatternSearch<wchar_t>(chars).forEachOverlapping(searched, [&](std::size_t at) {
    kept = moveUnits({next, start + at}, kept);
    next = start + at + 1;
    kept = removeAcrossGap(start, kept, next, chars);
  });
  return static_cast<std::size_t>(moveUnits({next, start + text.size()}, kept) - start);
}

// How far a text matches `chars` at a place: the greatest n for which the n units before that place
// are the first n of `chars` (Knuth, Morris and Pratt, 1977).
using Match = uint32_t;

// The match after one more unit. `borders[n]`, for n from 1 on, is the longest match at the end of the
// first n units of `chars` that is not all of them.
Match extendMatch(Match match, wchar_t unit, std::wstring_view chars, const Match* borders) {
  while (match > 0 && chars[match] != unit) match = borders[match];
  return match + (chars[match] == unit ? 1 : 0);
}

// Writes the borders of `chars`, which is not empty.
void findBorders(std::wstring_view chars, Match* borders) {
  borders[1] = 0;
  for (std::size_t i = 1; i < chars.size(); ++i) {
    borders[i + 1] = extendMatch(borders[i], chars[i], chars, borders);
  }
}

// What follows a gap is the tail: `chars` without its first unit. For each match at the gap, this is how
// many units before the gap are in the leftmost occurrence that reaches over it, or 0. The first r units
// of `chars` and then the tail begin with `chars` if r is 1, and otherwise just if the tail begins with
// its own last chars.size() - r units: that number is a border of the tail. A match for which this does
// not hold has the reach of the next shorter match, its border. `scratch` has room for the borders of
// the tail.
void findReaches(std::wstring_view chars, const Match* borders, Match* reaches, Match* scratch) {
  const std::wstring_view tail = chars.substr(1);
  std::fill_n(reaches, chars.size(), 0);
  reaches[1] = 1;
  findBorders(tail, scratch);
  for (Match border = scratch[tail.size()]; border > 0; border = scratch[border]) {
    const std::size_t reach = chars.size() - border;
    reaches[reach] = static_cast<Match>(reach);
  }
  for (std::size_t match = 1; match < chars.size(); ++match) {
    if (reaches[match] == 0) reaches[match] = reaches[borders[match]];
  }
}

// The same as removeFirstUnits for a long `chars`, in linear time. A removal leaves the tail after the
// gap, whatever was before it, so the match at the gap alone decides where the next occurrence is: over
// the gap, or further on. If it is further on, the match after the tail is the border of `chars`.
std::size_t removeFirstUnitsOfLong(std::span<wchar_t> text, std::wstring_view chars) {
  const std::size_t size = chars.size();
  if (text.size() < size) return text.size();
  const std::wstring_view tail = chars.substr(1);

  // One run of memory for all, in place for short texts.
  Match inPlace[3 * (quvard::kUnitsInPlace + 1)];
  std::unique_ptr<Match[]> onHeap;
  const std::size_t room = (text.size() + 1) + 2 * (size + 1);
  if (room > std::size(inPlace)) onHeap.reset(new Match[room]);
  Match* const matches = onHeap ? onHeap.get() : inPlace;  // after each number of units kept
  Match* const borders = matches + text.size() + 1;
  Match* const reaches = borders + size + 1;
  findBorders(chars, borders);
  findReaches(chars, borders, reaches, matches);
  matches[0] = 0;

  std::size_t kept = 0;
  std::size_t next = 0;  // start of what is not read
  // The tail that the last removal left. From `unwritten` to its end, its units and matches are only
  // written when they are needed.
  std::size_t tailStart = 0;
  std::size_t unwritten = 0;
  std::size_t tailEnd = 0;
  const auto writeTail = [&](std::size_t end) {
    for (; unwritten < std::min(end, tailEnd); ++unwritten) {
      text[unwritten] = tail[unwritten - tailStart];
      matches[unwritten + 1] = extendMatch(matches[unwritten], text[unwritten], chars, borders);
    }
  };

  Match match = 0;
  while (next < text.size()) {
    text[kept] = text[next++];
    match = extendMatch(match, text[kept], chars, borders);
    matches[++kept] = match;
    if (match < size) continue;

    std::size_t gap = kept - size;
    writeTail(gap);
    while (const Match reach = reaches[matches[gap]]) {
      gap -= reach;
      // The units between the two gaps begin the tail now, and as many at its end are read again.
      const std::wstring_view again = tail.substr(size - reach);
      next -= again.size();
      moveUnits(again, text.data() + next);
    }
    tailStart = unwritten = gap;
    tailEnd = kept = gap + tail.size();
    match = borders[size];
  }
  writeTail(kept);
  return kept;
}

// Returns the new size.
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
