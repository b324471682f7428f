#include <string_view>
#include <utility>

#include "host/HostFrame.h"
#include "strings/Replacement.h"

using quvard::callWide;
using quvard::givenOut;

namespace {

struct MarkupToken {
  std::wstring_view token;
  std::wstring_view character;
};

constexpr MarkupToken kMarkupTokens[] = {
    {.token = L"<BR>", .character = L"\n"},
    {.token = L"<QM>", .character = L"\""},
    {.token = L"<CM>", .character = L","},
};

}  // namespace

std::wstring QUVARDHTMLProcessor(std::wstring text) {
  if (text.find(L'<') == text.npos) return text;
  for (const MarkupToken& row : kMarkupTokens) {
    text = quvard::replaced(std::move(text), row.token, row.character);
  }
  return text;
}

BSTR VB_QUVARDHTMLProcessor(BSTR text) { return givenOut(callWide(QUVARDHTMLProcessor, text)); }
