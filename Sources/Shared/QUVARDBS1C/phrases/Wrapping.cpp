#include <string_view>

#include "host/Boundary.h"

using quvard::TextBuffer;
using quvard::wideText;

namespace {

void appendWrapped(auto& output, wchar_t opening, std::wstring_view text, wchar_t closing) {
  output.reserve(text.size() + 2);
  output.push_back(opening);
  output.append(text);
  output.push_back(closing);
}

std::wstring wrap(wchar_t opening, std::wstring_view text, wchar_t closing) {
  std::wstring wrapped;
  appendWrapped(wrapped, opening, text, closing);
  return wrapped;
}

BSTR wrapHostString(wchar_t opening, BSTR text, wchar_t closing) {
  TextBuffer wrapped;
  appendWrapped(wrapped, opening, wideText(text), closing);
  return newHostString(wrapped);
}

}  // namespace

std::wstring SpStrSp(std::wstring text) { return wrap(L' ', text, L' '); }

std::wstring PStrP(std::wstring text) { return wrap(L'(', text, L')'); }

BSTR VB_SpStrSp(BSTR text) { return convertWstringToBSTR(SpStrSp(convertBSTRtoWstring(text))); }

BSTR VB_PStrP(BSTR text) { return wrapHostString(L'(', text, L')'); }

BSTR VB_BStrB(BSTR text) { return wrapHostString(L'[', text, L']'); }
