// The buffer path across the host boundary: host strings in through convToWstring, a host string
// out through SysAllocString2. A host routine of this path is one line:
//
//   BSTR VB_StrLeft(BSTR s, int32_t n) { return givenOut(callWide(StrLeft, s, n)); }
#ifndef QUVARDBS1C_HOST_HOSTFRAME_H
#define QUVARDBS1C_HOST_HOSTFRAME_H

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "QUVARDBS1C.h"
#include "QUVARDCR1C.h"

namespace quvard {

inline std::wstring takenIn(BSTR handle) {
  if (handle == nullptr) return {};
  return CW162W32(handle);
}
inline std::int32_t takenIn(std::int32_t scalar) { return scalar; }

// A call whose arguments are evaluated in their order, which braces guarantee and a plain call
// leaves open.
template <typename Result>
struct OrderedCall {
  template <typename Routine, typename... Arguments>
  OrderedCall(Routine routine, Arguments&&... arguments)
      : result(routine(std::forward<Arguments>(arguments)...)) {}
  Result result;
};

// Calls a wide routine with the arguments of a host routine.
template <typename Routine, typename... Arguments>
auto callWide(Routine routine, Arguments... arguments) {
  using Result = decltype(routine(takenIn(arguments)...));
  return OrderedCall<Result>{routine, takenIn(arguments)...}.result;
}

inline BSTR givenOut(const std::wstring& text) { return SysAllocString2(text.c_str()); }

// The units of a host string as they lie there; none for the null handle.
inline std::u16string_view unitsOf(BSTR handle) {
  if (handle == nullptr) return {};
  return {handle, wcslen16(handle)};
}

inline std::wstring widened(std::u16string_view units) { return {units.begin(), units.end()}; }

}  // namespace quvard

#endif
