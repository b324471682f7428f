#include "host/Boundary.h"

std::wstring StrConcat(std::wstring a, std::wstring b, std::wstring c, std::wstring d,
                       std::wstring e, std::wstring f) {
  a.reserve(a.size() + b.size() + c.size() + d.size() + e.size() + f.size());
  a.append(b).append(c).append(d).append(e).append(f);
  return a;
}

BSTR VB_StrConcat(BSTR a, BSTR b, BSTR c, BSTR d, BSTR e, BSTR f) {
  quvard::TextBuffer joined;
  for (const BSTR text : {a, b, c, d, e, f}) joined.append(quvard::wideText(text));
  return newHostString(joined);
}
