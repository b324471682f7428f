// The routes across the host boundary. A host routine is one line that names its route and the core
// that does its work:
//
//   BSTR VB_StrLeft(BSTR s, int32_t n) { return viaBuffer(leftOf, s, n); }
//
// | Host routine                 | Route                | Null handle    | Zero unit | Surrogates |
// |------------------------------|----------------------|----------------|-----------|------------|
// | VB_StrLeft, VB_StrRight      | viaBuffer            | empty text     | ends it   | two units  |
// | VB_StrLTrim, VB_StrRTrim     | viaBuffer            | empty text     | ends it   | two units  |
// | VB_StrLRTrim                 | viaBuffer            | empty text     | ends it   | two units  |
// | VB_StrConcat                 | joinViaBuffer        | empty text     | ends it   | two units  |
// | VB_RemoveChar                | viaBuffer            | empty text     | ends it   | two units  |
// | VB_RemoveNonNumericChar      | viaBuffer            | empty text     | ends it   | two units  |
// | VB_RemoveColon               | viaUnits             | gives null     | ends it   | two units  |
// | VB_CommonChar                | viaBuffer            | empty text     | ends it   | two units  |
// | ChrCount                     | viaBuffer            | gives 0        | ends it   | two units  |
// | StrFromTo, StrBetween        | viaBuffer            | empty text     | ends it   | two units  |
// | StrFromChrToChr              | viaBuffer            | empty text     | ends it   | two units  |
// | StrBetweenChrAndChr          | viaObject            | empty text     | ends it   | two units  |
// | VB_Replace, one unit by one  | unitsOf; copies text | gives text (1) | ends it   | two units  |
// | VB_Replace, otherwise        | unitsOf; giveOut     | gives text (1) | ends it   | two units  |
// | VB_Replace2                  | takeIn text, unitsOf | empty text     | ends it   | two units  |
// |                              | the others; giveOut  |                |           |            |
// | VB_LocalAN, VB_LocalAN2      | viaBuffer            | empty text     | ends it   | two units  |
// | VB_LowerFirst, VB_UpperFirst | viaBuffer            | empty text     | ends it   | two units  |
// | VB_SpStrSp                   | viaObject            | empty text     | ends it   | two units  |
// | VB_PStrP, VB_BStrB           | viaBuffer            | empty text     | ends it   | two units  |
// | VB_SingPlural                | copies its argument  | empty text     | ends it   | two units  |
// | VB_QUVARDHTMLProcessor       | viaBuffer            | empty text     | ends it   | two units  |
// | Cpp_DecimalFormat            | giveOut              | takes no text  |           |            |
// | VB_OutputFormat              | giveOut              | takes no text  |           |            |
// | VB_OptimalFormat             | giveOut              | takes no text  |           |            |
// | VB_SetFormat                 | giveOut, many times  | takes no text  |           |            |
//
// (1) A null text or pattern gives the handle of the text itself; a null replacement is empty.
#ifndef QUVARDBS1C_HOST_BOUNDARY_H
#define QUVARDBS1C_HOST_BOUNDARY_H

#include <concepts>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "QUVARDBS1C.h"
#include "QUVARDCR1C.h"
#include "host/TextBuffer.h"

namespace quvard {

// A number that crosses as it is. Any other one, a double for instance, would be narrowed on its
// way and does not compile.
template <typename Argument>
concept HostNumber = std::same_as<Argument, int32_t>;

template <typename Argument>
concept HostArgument = std::same_as<Argument, BSTR> || HostNumber<Argument>;

// The wide units of a host string where the sibling library holds them: until the next call of a
// service.
inline std::wstring_view bufferOf(BSTR handle) {
  if (handle == nullptr) return {};
  return viewOf(CW162W32(handle));
}

// The units of a host string where they are.
inline std::u16string_view unitsOf(BSTR handle) {
  if (handle == nullptr) return {};
  return {handle, wcslen16(handle)};
}

inline TextBuffer takeIn(BSTR handle) {
  return handle == nullptr ? TextBuffer() : TextBuffer(CW162W32(handle));
}
inline int32_t takeIn(int32_t number) { return number; }

inline BSTR giveOut(const Draft auto& text) { return SysAllocString2(TextBuffer(text).c_str()); }
inline BSTR giveOut(const wchar_t* text) { return SysAllocString2(text); }
inline BSTR giveOut(std::wstring_view text) { return SysAllocString2(TextBuffer(text).c_str()); }
// The first units of a TextBuffer, which has room for a zero unit after them.
inline BSTR giveOut(std::span<wchar_t> text) {
  text.data()[text.size()] = 0;
  return SysAllocString2(text.data());
}
inline int32_t giveOut(int32_t number) { return number; }

// A call whose arguments are evaluated in their order, which braces guarantee and parentheses do
// not.
template <typename Result>
struct OrderedCall {
  template <typename Routine, typename... Arguments>
  OrderedCall(Routine routine, Arguments&&... arguments)
      : result(routine(std::forward<Arguments>(arguments)...)) {}
  Result result;
};

// One text is read where the sibling library holds it: no service is called before the result is
// written.
template <typename Core>
auto viaBuffer(Core core, BSTR text, HostNumber auto... numbers) {
  return giveOut(core(bufferOf(text), numbers...));
}

// Each of several texts is copied before the next one is taken in.
template <typename Core>
auto viaBuffer(Core core, BSTR first, BSTR second, HostArgument auto... others) {
  const auto call = [core](auto&&... arguments) { return giveOut(core(arguments...)); };
  using Result = decltype(call(takeIn(first), takeIn(second), takeIn(others)...));
  return OrderedCall<Result>{call, takeIn(first), takeIn(second), takeIn(others)...}.result;
}

// The texts one after the other, each copied straight to its place in the result.
template <std::same_as<BSTR>... Handles>
BSTR joinViaBuffer(Handles... texts) {
  TextBuffer joined;
  for (const BSTR text : {texts...}) {
    if (text != nullptr) joined.append(CW162W32(text));
  }
  return giveOut(joined.c_str());
}

template <typename Core>
BSTR viaUnits(Core core, BSTR text) {
  return giveOut(core(unitsOf(text)));
}

// The wide routine itself, on the strings that the services make.
template <typename Routine, std::same_as<BSTR>... Handles>
BSTR viaObject(Routine routine, Handles... texts) {
  return convertWstringToBSTR(
      OrderedCall<std::wstring>{routine, convertBSTRtoWstring(texts)...}.result);
}

}  // namespace quvard

#endif
