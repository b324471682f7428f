#include <cstdint>
#include <string_view>
#include <utility>

#include "host/HostFrame.h"
#include "strings/PatternSearch.h"

using quvard::callWide;
using quvard::givenOut;

namespace {

// The units at the 1-based positions `first` to `last`, both within the text where any lie between.
std::wstring slice(std::wstring text, std::int64_t first, std::int64_t last) {
  if (last < first) return {};
  text.resize(static_cast<std::size_t>(last));
  text.erase(0, static_cast<std::size_t>(first - 1));
  return text;
}

// A negative position counts as beyond every end.
bool isWithin(const std::wstring& text, std::int32_t position) {
  return static_cast<std::uint32_t>(position) <= text.size();
}

std::wstring fromTo(std::wstring text, std::int32_t from, std::int32_t to) {
  if (from < 1 || !isWithin(text, to)) return {};
  return slice(std::move(text), from, to);
}

std::wstring between(std::wstring text, std::int32_t from, std::int32_t to) {
  if (from < 1 || !isWithin(text, to)) return {};
  return slice(std::move(text), std::int64_t{from} + 1, std::int64_t{to} - 1);
}

// Two delimiters of one unit each will do, and so will any two of which one is empty.
bool areDelimiters(const std::wstring& opening, const std::wstring& closing) {
  return opening.empty() || closing.empty() || (opening.size() == 1 && closing.size() == 1);
}

std::size_t find(std::wstring_view text, std::wstring_view delimiter) {
  return quvard::PatternSearch<wchar_t>(delimiter).find(text, 0);
}

std::wstring fromChrToChr(const std::wstring& text, const std::wstring& opening,
                          const std::wstring& closing) {
  if (!areDelimiters(opening, closing)) return {};
  const std::size_t first = find(text, opening);
  const std::size_t last = find(text, closing);
  if (first == text.npos || last == text.npos || last < first) return {};
  return text.substr(first, last - first + 1);
}

}  // namespace

std::wstring cStrBetweenChrAndChr(std::wstring text, std::wstring opening, std::wstring closing) {
  if (!areDelimiters(opening, closing)) return {};
  const std::size_t opened = find(text, opening);
  if (opened == text.npos || opened == text.size()) return {};
  const std::wstring_view rest = std::wstring_view(text).substr(opened + 1);
  const std::size_t length = find(rest, closing);
  return length == rest.npos ? std::wstring() : std::wstring(rest.substr(0, length));
}

BSTR StrFromTo(BSTR text, std::int32_t from, std::int32_t to) {
  return givenOut(callWide(fromTo, text, from, to));
}

BSTR StrBetween(BSTR text, std::int32_t from, std::int32_t to) {
  return givenOut(callWide(between, text, from, to));
}

BSTR StrFromChrToChr(BSTR text, BSTR opening, BSTR closing) {
  return givenOut(callWide(fromChrToChr, text, opening, closing));
}

BSTR StrBetweenChrAndChr(BSTR text, BSTR opening, BSTR closing) {
  std::wstring whole = convertBSTRtoWstring(text);
  std::wstring start = convertBSTRtoWstring(opening);
  std::wstring end = convertBSTRtoWstring(closing);
  return convertWstringToBSTR(
      cStrBetweenChrAndChr(std::move(whole), std::move(start), std::move(end)));
}
