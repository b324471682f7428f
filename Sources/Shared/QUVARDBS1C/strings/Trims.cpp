#include <algorithm>

#include "host/HostFrame.h"

using quvard::callWide;
using quvard::givenOut;

namespace {

constexpr wchar_t kBlank = L' ';

void trimLeft(std::wstring& s) { s.erase(0, std::min(s.find_first_not_of(kBlank), s.size())); }

// find_last_not_of gives npos for a string of blanks, and npos + 1 is 0.
void trimRight(std::wstring& s) { s.resize(s.find_last_not_of(kBlank) + 1); }

}  // namespace

std::wstring StrLTrim(std::wstring s) {
  trimLeft(s);
  return s;
}

std::wstring StrRTrim(std::wstring s) {
  trimRight(s);
  return s;
}

std::wstring StrLRTrim(std::wstring s) {
  // The right end first: what goes there need not be moved.
  trimRight(s);
  trimLeft(s);
  return s;
}

BSTR VB_StrLTrim(BSTR s) { return givenOut(callWide(StrLTrim, s)); }

BSTR VB_StrRTrim(BSTR s) { return givenOut(callWide(StrRTrim, s)); }

BSTR VB_StrLRTrim(BSTR s) { return givenOut(callWide(StrLRTrim, s)); }
