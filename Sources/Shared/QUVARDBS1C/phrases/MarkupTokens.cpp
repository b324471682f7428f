#include <utility>

#include "host/HostFrame.h"

using quvard::callWide;
using quvard::givenOut;

namespace {

struct MarkupToken {
  const wchar_t* token;
  const wchar_t* character;
};

constexpr MarkupToken kMarkupTokens[] = {
    {.token = L"<BR>", .character = L"\n"},
    {.token = L"<QM>", .character = L"\""},
    {.token = L"<CM>", .character = L","},
};

}  // namespace

std::wstring QUVARDHTMLProcessor(std::wstring text) {
  for (const MarkupToken& row : kMarkupTokens) {
    text = Replace(std::move(text), std::wstring(row.token), std::wstring(row.character));
  }
  return text;
}

BSTR VB_QUVARDHTMLProcessor(BSTR text) { return givenOut(callWide(QUVARDHTMLProcessor, text)); }
