#include <cstdint>
#include <string_view>
#include <utility>

#include "host/Boundary.h"
#include "strings/PatternSearch.h"
#include "strings/WideForm.h"

using quvard::TextBuffer;
using quvard::wideText;

namespace {

// Returns the code units at the positions [first, last], counted from 1. Precondition: both positions are
// within the text, or last < first.
std::wstring_view slice(std::wstring_view text, int64_t first, int64_t last) {
  if (last < first) return {};
  return text.substr(static_cast<std::size_t>(first - 1),
                     static_cast<std::size_t>(last - first + 1));
}

// A negative position converts to one beyond every text.
bool isWithin(std::wstring_view text, int32_t position) {
  return static_cast<uint32_t>(position) <= text.size();
}

std::wstring_view fromTo(std::wstring_view text, int32_t from, int32_t to) {
  if (from < 1 || !isWithin(text, to)) return {};
  return slice(text, from, to);
}

std::wstring_view between(std::wstring_view text, int32_t from, int32_t to) {
  if (from < 1 || !isWithin(text, to)) return {};
  return slice(text, int64_t{from} + 1, int64_t{to} - 1);
}

// Each delimiter has one code unit, or at least one delimiter is empty.
bool areDelimiters(std::wstring_view opening, std::wstring_view closing) {
  return opening.empty() || closing.empty() || (opening.size() == 1 && closing.size() == 1);
}

std::size_t find(std::wstring_view text, std::wstring_view delimiter) {
  return quvard::PatternSearch<wchar_t>(delimiter).find(text);
}

std::wstring_view fromChrToChr(std::wstring_view text, std::wstring_view opening,
                               std::wstring_view closing) {
  if (!areDelimiters(opening, closing)) return {};
  const std::size_t first = find(text, opening);
  const std::size_t last = find(text, closing);
  if (first == text.npos || last == text.npos || last < first) return {};
  return text.substr(first, last - first + 1);
}

std::wstring_view betweenChrAndChr(std::wstring_view text, std::wstring_view opening,
                                   std::wstring_view closing) {
  if (!areDelimiters(opening, closing)) return {};
  const std::size_t start = find(text, opening);
  if (start == text.npos || start == text.size()) return {};
  const std::wstring_view rest = text.substr(start + 1);
  const std::size_t length = find(rest, closing);
  if (length == rest.npos) return {};
  return rest.substr(0, length);
}

}  // namespace

std::wstring cStrBetweenChrAndChr(std::wstring text, std::wstring opening, std::wstring closing) {
  quvard::cutTo(text, betweenChrAndChr(text, opening, closing));
  return text;
}

BSTR StrFromTo(BSTR text, int32_t from, int32_t to) {
  return quvard::newHostString(fromTo(wideText(text), from, to));
}

BSTR StrBetween(BSTR text, int32_t from, int32_t to) {
  return quvard::newHostString(between(wideText(text), from, to));
}

BSTR StrFromChrToChr(BSTR text, BSTR opening, BSTR closing) {
  TextBuffer wide(wideText(text));
  const TextBuffer wideOpening(wideText(opening));
  return newHostString(wide, fromChrToChr(wide, wideOpening, wideText(closing)));
}

BSTR StrBetweenChrAndChr(BSTR text, BSTR opening, BSTR closing) {
  std::wstring wide = convertBSTRtoWstring(text);
  std::wstring wideOpening = convertBSTRtoWstring(opening);
  std::wstring wideClosing = convertBSTRtoWstring(closing);
  return convertWstringToBSTR(
      cStrBetweenChrAndChr(std::move(wide), std::move(wideOpening), std::move(wideClosing)));
}
