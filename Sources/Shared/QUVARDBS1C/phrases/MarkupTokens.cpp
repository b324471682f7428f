#include <string_view>

#include "host/Boundary.h"
#include "strings/PatternSearch.h"
#include "strings/WideForm.h"

namespace {

struct MarkupToken {
  std::wstring_view token;
  wchar_t character;
};

// Each token begins with the only `<` in it, so no two of them overlap.
constexpr MarkupToken kMarkupTokens[] = {
    {.token = L"<BR>", .character = L'\n'},
    {.token = L"<QM>", .character = L'"'},
    {.token = L"<CM>", .character = L','},
};

// A text with the characters in the place of their tokens.
struct Unmarked {
  std::wstring_view text;

  std::size_t room() const { return text.size(); }

  wchar_t* write(wchar_t* out) const {
    const quvard::PatternSearch<wchar_t> search(L"<");
    std::size_t from = 0;
    for (std::size_t at = 0; (at = search.find(text, at)) != text.npos; ++at) {
      for (const auto& [token, character] : kMarkupTokens) {
        if (text.substr(at, token.size()) != token) continue;
        out = quvard::copyUnits(text.substr(from, at - from), out);
        *out++ = character;
        from = at + token.size();
      }
    }
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
