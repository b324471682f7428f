#include <algorithm>
#include <cstdint>

#include "host/Boundary.h"
#include "strings/WideForm.h"

using quvard::cutTo;
using quvard::wideText;

namespace {

// A negative n converts to a huge size_t, so all of s is taken.
std::size_t countWithin(std::wstring_view s, int32_t n) {
  return std::min(static_cast<std::size_t>(n), s.size());
}

std::wstring_view leftOf(std::wstring_view s, int32_t n) { return s.substr(0, countWithin(s, n)); }

std::wstring_view rightOf(std::wstring_view s, int32_t n) {
  return s.substr(s.size() - countWithin(s, n));
}

}  // namespace

std::wstring StrLeft(std::wstring s, int32_t n) {
  cutTo(s, leftOf(s, n));
  return s;
}

std::wstring StrRight(std::wstring s, int32_t n) {
  cutTo(s, rightOf(s, n));
  return s;
}

BSTR VB_StrLeft(BSTR s, int32_t n) { return quvard::newHostString(leftOf(wideText(s), n)); }

BSTR VB_StrRight(BSTR s, int32_t n) { return quvard::newHostString(rightOf(wideText(s), n)); }
