#include <algorithm>
#include <string>
#include <string_view>

#include "host/Boundary.h"
#include "strings/UnitBlocks.h"
#include "strings/WideForm.h"

using quvard::cutTo;
using quvard::kMatchedUnits;
using quvard::newHostString;
using quvard::wideText;

namespace {

constexpr wchar_t kBlank = L' ';

// Precondition: stretch.size() == kMatchedUnits.
bool isBlank(std::wstring_view stretch) { return ~quvard::matches(stretch, kBlank) == 0; }

std::wstring_view trimLeft(std::wstring_view s) {
  while (s.size() >= kMatchedUnits && isBlank(s.substr(0, kMatchedUnits))) {
    s.remove_prefix(kMatchedUnits);
  }
  return s.substr(std::min(s.find_first_not_of(kBlank), s.size()));
}

// For a text of blanks find_last_not_of returns npos, and npos + 1 is 0.
std::wstring_view trimRight(std::wstring_view s) {
  while (s.size() >= kMatchedUnits && isBlank(s.substr(s.size() - kMatchedUnits))) {
    s.remove_suffix(kMatchedUnits);
  }
  return s.substr(0, s.find_last_not_of(kBlank) + 1);
}

std::wstring_view trimBoth(std::wstring_view s) { return trimLeft(trimRight(s)); }

}  // namespace

std::wstring StrLTrim(std::wstring s) {
  cutTo(s, trimLeft(s));
  return s;
}

std::wstring StrRTrim(std::wstring s) {
  cutTo(s, trimRight(s));
  return s;
}

std::wstring StrLRTrim(std::wstring s) {
  cutTo(s, trimBoth(s));
  return s;
}

BSTR VB_StrLTrim(BSTR s) { return newHostString(trimLeft(wideText(s))); }

BSTR VB_StrRTrim(BSTR s) { return newHostString(trimRight(wideText(s))); }

BSTR VB_StrLRTrim(BSTR s) { return newHostString(trimBoth(wideText(s))); }
