// The routes across the host boundary. A host routine is one line that names its route and the core
// that does its work:
//
//   BSTR VB_StrLeft(BSTR s, std::int32_t n) { return viaBuffer(leftOf, s, n); }
//
// On every route a text ends at its first zero unit, on the object route as far as the services do
// so, and a surrogate pair is two units on its way in and out.
//
// | Host routine                          | Route               | Null handle                     |
// |---------------------------------------|---------------------|---------------------------------|
// | VB_StrLeft, VB_StrRight, VB_StrConcat | viaBuffer           | empty text                      |
// | VB_StrLTrim, VB_StrRTrim              | viaBuffer           | empty text                      |
// | VB_StrLRTrim                          | viaBuffer           | empty text                      |
// | VB_RemoveChar                         | viaBuffer           | empty text                      |
// | VB_RemoveNonNumericChar               | viaBuffer           | empty text                      |
// | VB_RemoveColon                        | viaUnits            | gives the null handle           |
// | VB_CommonChar                         | viaBuffer           | empty text                      |
// | ChrCount                              | viaBuffer           | gives 0, nothing is taken in    |
// | StrFromTo, StrBetween                 | viaBuffer           | empty text                      |
// | StrFromChrToChr                       | viaBuffer           | empty text                      |
// | StrBetweenChrAndChr                   | viaObject           | left to the service             |
// | VB_Replace                            | unitsOf; giveOut or | a null text or pattern gives    |
// |                                       | SysAllocString16    | the text's handle; otherwise an |
// |                                       |                     | empty replacement               |
// | VB_Replace2                           | textOf for the      | empty text                      |
// |                                       | text, then unitsOf; |                                 |
// |                                       | giveOut             |                                 |
// | VB_LocalAN, VB_LocalAN2               | viaBuffer           | empty text                      |
// | VB_LowerFirst, VB_UpperFirst          | viaBuffer           | empty text                      |
// | VB_SpStrSp                            | viaObject           | left to the service             |
// | VB_PStrP, VB_BStrB                    | viaBuffer           | empty text                      |
// | VB_SingPlural                         | SysAllocString16    | left to the service             |
// | VB_QUVARDHTMLProcessor                | viaBuffer           | empty text                      |
// | VB_SetFormat, Cpp_DecimalFormat       | giveOut             | takes no text                   |
// | VB_OutputFormat, VB_OptimalFormat     | giveOut             | takes no text                   |
#ifndef QUVARDBS1C_HOST_BOUNDARY_H
#define QUVARDBS1C_HOST_BOUNDARY_H

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "QUVARDBS1C.h"
#include "QUVARDCR1C.h"
#include "host/TextBuffer.h"

namespace quvard {

// What may cross: a host string, and a number that is 32 bits wide already. Any other number would
// be narrowed on its way and does not compile.
template <typename Argument>
concept HostArgument = std::same_as<Argument, BSTR> || std::same_as<Argument, std::int32_t>;

// The wide units of a host string where the sibling library holds them, until the next call of a
// service.
inline std::wstring_view bufferOf(BSTR handle) {
  if (handle == nullptr) return {};
  return CW162W32(handle);
}

// The units of a host string where they are.
inline std::u16string_view unitsOf(BSTR handle) {
  if (handle == nullptr) return {};
  return {handle, wcslen16(handle)};
}

inline BSTR giveOut(const Draft auto& text) { return SysAllocString2(TextBuffer(text).c_str()); }
inline BSTR giveOut(std::wstring_view text) { return SysAllocString2(TextBuffer(text).c_str()); }
inline std::int32_t giveOut(std::int32_t number) { return number; }

// A call whose arguments are evaluated in their order, which braces guarantee and parentheses do
// not.
template <typename Result>
struct OrderedCall {
  template <typename Routine, typename... Arguments>
  OrderedCall(Routine routine, Arguments&&... arguments)
      : result(routine(std::forward<Arguments>(arguments)...)) {}
  Result result;
};

// One text is read where the sibling library holds it: no service is called until its result is
// written.
template <typename Core>
auto viaBuffer(Core core, BSTR text, std::same_as<std::int32_t> auto... numbers) {
  return giveOut(core(bufferOf(text), numbers...));
}

inline TextBuffer copyOfBuffer(BSTR handle) { return TextBuffer(bufferOf(handle)); }
inline std::int32_t copyOfBuffer(std::int32_t number) { return number; }

// Of several texts each is copied before the next one is taken in.
template <typename Core>
auto viaBuffer(Core core, BSTR first, BSTR second, HostArgument auto... others) {
  const auto call = [core](auto&&... arguments) { return giveOut(core(arguments...)); };
  using Result = decltype(call(copyOfBuffer(first), copyOfBuffer(second), copyOfBuffer(others)...));
  return OrderedCall<Result>{call, copyOfBuffer(first), copyOfBuffer(second),
                             copyOfBuffer(others)...}
      .result;
}

template <typename Core>
BSTR viaUnits(Core core, BSTR text) {
  return giveOut(core(unitsOf(text)));
}

// The wide routine itself, on the strings that the services make.
template <typename Routine, std::same_as<BSTR>... Handles>
BSTR viaObject(Routine routine, Handles... handles) {
  return convertWstringToBSTR(
      OrderedCall<std::wstring>{routine, convertBSTRtoWstring(handles)...}.result);
}

}  // namespace quvard

#endif
