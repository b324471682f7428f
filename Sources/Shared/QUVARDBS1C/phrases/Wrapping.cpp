#include <string_view>
#include <utility>

#include "host/HostFrame.h"

using quvard::callWide;
using quvard::givenOut;

namespace {

std::wstring enclosed(wchar_t opening, std::wstring_view text, wchar_t closing) {
  std::wstring result;
  result.reserve(text.size() + 2);
  result.push_back(opening);
  result.append(text);
  result.push_back(closing);
  return result;
}

std::wstring inBrackets(std::wstring_view text) { return enclosed(L'[', text, L']'); }

}  // namespace

std::wstring SpStrSp(std::wstring text) { return enclosed(L' ', text, L' '); }

std::wstring PStrP(std::wstring text) { return enclosed(L'(', text, L')'); }

BSTR VB_SpStrSp(BSTR text) { return convertWstringToBSTR(SpStrSp(convertBSTRtoWstring(text))); }

BSTR VB_PStrP(BSTR text) { return givenOut(callWide(PStrP, text)); }

BSTR VB_BStrB(BSTR text) { return givenOut(callWide(inBrackets, text)); }
