#include <algorithm>
#include <iterator>
#include <string_view>

#include "host/Boundary.h"
#include "strings/PatternSearch.h"
#include "strings/WideForm.h"

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

// A text with the characters in the place of their tokens.
struct Unmarked {
  std::wstring_view text;

  std::size_t room() const { return text.size(); }

  wchar_t* write(wchar_t* out) const {
    std::size_t from = 0;
    quvard::PatternSearch<wchar_t>(L"<").forEach(text, [&](std::size_t at) {
      for (const auto& [units, character] : kMarkupTokens) {
        if (text.size() - at < std::size(units)) return;
        if (!std::equal(std::begin(units), std::end(units), text.begin() + at)) continue;
        out = quvard::copyUnits(text.substr(from, at - from), out);
        *out++ = character;
        from = at + std::size(units);
      }
    });
    return quvard::copyUnits(text.substr(from), out);
  }
};

Unmarked unmark(std::wstring_view text) { return {text}; }

}  // namespace

std::wstring QUVARDHTMLProcessor(std::wstring text) {
  quvard::overwrite(text, unmark(text));
  return text;
}

BSTR VB_QUVARDHTMLProcessor(BSTR text) { return quvard::viaBuffer(unmark, text); }
