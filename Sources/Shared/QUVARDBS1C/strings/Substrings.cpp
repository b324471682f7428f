#include <algorithm>

#include "host/HostFrame.h"

using quvard::callWide;
using quvard::givenOut;

namespace {

// A negative count is widened with its sign and read as unsigned, and so lies above every length.
std::size_t countWithin(const std::wstring& s, std::int32_t n) {
  return std::min(static_cast<std::size_t>(n), s.size());
}

}  // namespace

std::wstring StrLeft(std::wstring s, std::int32_t n) {
  s.resize(countWithin(s, n));
  return s;
}

std::wstring StrRight(std::wstring s, std::int32_t n) {
  s.erase(0, s.size() - countWithin(s, n));
  return s;
}

std::wstring StrConcat(std::wstring a, std::wstring b, std::wstring c, std::wstring d,
                       std::wstring e, std::wstring f) {
  a.reserve(a.size() + b.size() + c.size() + d.size() + e.size() + f.size());
  a.append(b).append(c).append(d).append(e).append(f);
  return a;
}

BSTR VB_StrLeft(BSTR s, std::int32_t n) { return givenOut(callWide(StrLeft, s, n)); }

BSTR VB_StrRight(BSTR s, std::int32_t n) { return givenOut(callWide(StrRight, s, n)); }

BSTR VB_StrConcat(BSTR a, BSTR b, BSTR c, BSTR d, BSTR e, BSTR f) {
  return givenOut(callWide(StrConcat, a, b, c, d, e, f));
}
