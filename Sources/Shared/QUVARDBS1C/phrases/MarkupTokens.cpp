#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>

#include "host/Boundary.h"
#include "strings/PatternSearch.h"

namespace {

struct MarkupToken {
  wchar_t units[4];
  wchar_t character;
};

// Each token begins with the only `<` in it, so no two of them overlap.
constexpr MarkupToken kMarkupTokens[] = {
    {.units = {L'<', L'B', L'R', L'>'}, .character = L'\n'},
    {.units = {L'<', L'Q', L'M', L'>'}, .character = L'"'},
    {.units = {L'<', L'C', L'M', L'>'}, .character = L','},
};

// Writes the text to `out`, which may be the text itself, with the characters in place of their tokens,
// and returns its new size.
std::size_t replaceTokens(std::wstring_view text, wchar_t* out) {
  const wchar_t* const start = out;
  std::size_t next = 0;
  quvard::PatternSearch<wchar_t>(L"<").forEach(text, [&](std::size_t at) {
    for (const auto& [units, character] : kMarkupTokens) {
      if (text.size() - at < std::size(units)) return;
      if (!std::equal(std::begin(units), std::end(units), text.begin() + at)) continue;
      out = quvard::moveUnits(text.substr(next, at - next), out);
      *out++ = character;
      next = at + std::size(units);
    }
  });
  return static_cast<std::size_t>(quvard::moveUnits(text.substr(next), out) - start);
}

}  // namespace

std::wstring QUVARDHTMLProcessor(std::wstring text) {
  text.resize(replaceTokens(text, text.data()));
  return text;
}

BSTR VB_QUVARDHTMLProcessor(BSTR text) {
  const std::wstring_view wide = quvard::wideText(text);
  quvard::TextBuffer result;
  result.resize(wide.size());
  result.resize(replaceTokens(wide, result.data()));
  return newHostString(result);
}
