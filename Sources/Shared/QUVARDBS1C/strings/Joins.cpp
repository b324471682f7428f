#include <string_view>

#include "host/Boundary.h"
#include "strings/WideForm.h"

namespace {

quvard::Joined<6> join(std::wstring_view a, std::wstring_view b, std::wstring_view c,
                       std::wstring_view d, std::wstring_view e, std::wstring_view f) {
  return {a, b, c, d, e, f};
}

}  // namespace

std::wstring StrConcat(std::wstring a, std::wstring b, std::wstring c, std::wstring d,
                       std::wstring e, std::wstring f) {
  return quvard::toWstring(join(a, b, c, d, e, f));
}

BSTR VB_StrConcat(BSTR a, BSTR b, BSTR c, BSTR d, BSTR e, BSTR f) {
  return quvard::viaBuffer(join, a, b, c, d, e, f);
}
