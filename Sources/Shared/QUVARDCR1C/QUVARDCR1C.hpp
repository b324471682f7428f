/// @file
/// Host strings in C++17: an owner, UTF-8, calls of host routines, and a guard against `bool` flags.
///
/// With this header, passing `bool` to a routine that takes a `HostBool` does not compile. Pass
/// quvard::hostBool(), or call the routine through quvard::call(), which converts `bool`. The guard is a set
/// of overloads, so `decltype(&LinearInterpol)` is ambiguous here.
#ifndef QUVARDCR1C_HPP
#define QUVARDCR1C_HPP

#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "QUVARDBS1C.h"
#include "QUVARDCR1C.h"

namespace quvard {

/// @defgroup host_strings_cpp Host strings in C++ (QUVARDCR1C.hpp)
/// An owner of a host string, UTF-8, and calls of host routines.
/// @{

/// Converts a Boolean for the host.
///
/// @param flag  Boolean
/// @return      -1 for true, otherwise 0
constexpr HostBool hostBool(bool flag) noexcept { return flag ? -1 : 0; }

/// Converts UTF-8 to UTF-16. Each maximal subpart of an ill-formed sequence becomes U+FFFD (The Unicode
/// Standard, 3.9). Overlong forms, surrogates and values above U+10FFFF are ill-formed.
///
/// @param utf8  text in UTF-8
/// @return      text in UTF-16
inline std::u16string utf16FromUtf8(std::string_view utf8) {
  std::u16string utf16;
  for (std::size_t i = 0; i < utf8.size();) {
    const unsigned lead = static_cast<unsigned char>(utf8[i++]);
    // The number of continuation bytes, -1 if `lead` begins no sequence, and the bounds of the first.
    int missing = lead < 0x80                  ? 0
                  : lead < 0xC2 || lead > 0xF4 ? -1
                  : lead < 0xE0                ? 1
                  : lead < 0xF0                ? 2
                                               : 3;
    unsigned low = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    unsigned high = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    char32_t point = missing > 0 ? lead & (0x3Fu >> missing) : lead;
    for (; missing > 0 && i < utf8.size(); --missing, ++i, low = 0x80, high = 0xBF) {
      const unsigned byte = static_cast<unsigned char>(utf8[i]);
      if (byte < low || byte > high) break;
      point = point << 6 | (byte & 0x3F);
    }
    if (missing != 0) point = 0xFFFD;
    if (point > 0xFFFF) utf16 += static_cast<char16_t>(0xD7C0 + (point >> 10));
    utf16 += static_cast<char16_t>(point > 0xFFFF ? 0xDC00 | (point & 0x3FF) : point);
  }
  return utf16;
}

/// Converts UTF-16 to UTF-8. Each unpaired surrogate becomes U+FFFD.
///
/// @param utf16  text in UTF-16
/// @return       text in UTF-8
inline std::string utf8FromUtf16(std::u16string_view utf16) {
  std::string utf8;
  for (std::size_t i = 0; i < utf16.size(); ++i) {
    auto point = static_cast<char32_t>(utf16[i]);
    if (point >> 11 == 0x1B) {  // a surrogate
      const bool isPair = point < 0xDC00 && i + 1 < utf16.size() && utf16[i + 1] >> 10 == 0x37;
      point = isPair ? 0x10000 + ((point & 0x3FF) << 10) + (utf16[++i] & 0x3FFu) : 0xFFFD;
    }
    int shift = point < 0x80 ? 0 : point < 0x800 ? 6 : point < 0x10000 ? 12 : 18;
    const unsigned marks[] = {0, 0xC0, 0xE0, 0xF0};
    utf8 += static_cast<char>(marks[shift / 6] | point >> shift);
    while ((shift -= 6) >= 0) utf8 += static_cast<char>(0x80 | (point >> shift & 0x3F));
  }
  return utf8;
}

/// @cond
namespace detail {
// g++ converts the literal u"" to BSTR; a deduced type is exact.
template <typename Type>
using IfHandle =
    std::enable_if_t<std::is_same_v<Type, BSTR> || std::is_same_v<Type, std::nullptr_t>, int>;
}  // namespace detail
/// @endcond

/// Owns one host string, or the null handle, and releases it. `HostString(other.view())` is a copy.
class HostString {
 public:
  HostString() noexcept = default;  ///< Holds the null handle.
  /// Makes a host string.
  /// @param text  text in UTF-16; copied up to its first zero code unit, which ends every host string
  /// @throws std::bad_alloc
  explicit HostString(std::u16string_view text)
      : handle_(SysAllocString16(std::u16string(text).c_str())) {}
  /// Deleted: call adopt() to own a handle, or pass a view to copy its text.
  template <typename Handle, detail::IfHandle<Handle> = 0>
  HostString(Handle) = delete;
  /// Takes the host string of another owner.
  /// @param other  an owner, which then holds the null handle
  HostString(HostString&& other) noexcept : handle_(other.detach()) {}
  /// Releases the host string of this object and takes that of another owner.
  /// @param other  an owner, which then holds the null handle; this object: nothing changes
  /// @return       this object
  HostString& operator=(HostString&& other) noexcept {
    releaseBSTR(std::exchange(handle_, other.detach()));
    return *this;
  }
  ~HostString() { releaseBSTR(handle_); }

  /// Makes an owner of a handle.
  /// @param handle  result of a host routine or of a service, or null
  /// @return        owner of @p handle
  static HostString adopt(BSTR handle) noexcept {
    HostString result;
    result.handle_ = handle;
    return result;
  }
  /// Gives up the host string. This object then holds the null handle.
  /// @return  handle, which the caller releases
  [[nodiscard]] BSTR detach() noexcept { return std::exchange(handle_, nullptr); }
  /// Returns the handle, as an argument of a routine.
  /// @return  handle, which this object still owns
  BSTR handle() const noexcept { return handle_; }
  /// Returns the text in UTF-16.
  /// @return  view, valid while this object owns the host string; empty for the null handle
  std::u16string_view view() const noexcept {
    return handle_ == nullptr ? std::u16string_view() : std::u16string_view(handle_);
  }
  /// Returns the text in UTF-8.
  /// @return  result of utf8FromUtf16()
  std::string utf8() const { return utf8FromUtf16(view()); }

 private:
  BSTR handle_ = nullptr;
};

/// @cond
namespace detail {
// An argument of call() for a host string.
struct Text {
  explicit Text(const HostString& string) : handle(string.handle()) {}
  template <typename Handle, IfHandle<Handle> = 0>
  explicit Text(Handle unowned) : handle(unowned) {}
  explicit Text(std::u16string_view text) : owner(text), handle(owner.handle()) {}
  explicit Text(std::string_view utf8) : Text(std::u16string_view(utf16FromUtf8(utf8))) {}
  operator BSTR() const { return handle; }
  HostString owner;
  BSTR handle;
};

template <typename Parameter, typename Argument>
decltype(auto) convert(Argument&& argument) {
  constexpr bool isBool = std::is_same_v<std::decay_t<Argument>, bool>;
  if constexpr (std::is_same_v<Parameter, BSTR>)
    return Text(argument);
  else if constexpr (isBool && std::is_same_v<Parameter, HostBool>)
    return hostBool(argument);
  else
    return std::forward<Argument>(argument);
}

inline bool isHandle(const Text& text, BSTR handle) { return handle && text.handle == handle; }
template <typename Argument>
bool isHandle(const Argument&, BSTR) {
  return false;
}
}  // namespace detail
/// @endcond

/// Calls a routine that returns a host string.
///
/// | Argument | Passed as |
/// | --- | --- |
/// | text in UTF-16 or UTF-8 | a host string up to the first zero code unit, released after the call |
/// | HostString, `BSTR`, `nullptr` | its handle |
/// | `bool` for a `HostBool` | -1 or 0 |
///
/// @param routine    host routine
/// @param arguments  one argument for each parameter of @p routine. VB_Replace() may modify a HostString
/// @return           owner of the result; of a copy if the result is the handle of an argument, as
///                   VB_Replace() returns it for a null pattern
/// @throws std::bad_alloc
/// @b Example: `quvard::call(VB_Replace, "a,b,c", ",", ", ").utf8() == "a, b, c"`
template <typename... Parameters, typename... Arguments>
HostString call(BSTR (*routine)(Parameters...), Arguments&&... arguments) {
  return [routine](const auto&... converted) {
    const BSTR result = routine(converted...);
    const bool isArgument = (detail::isHandle(converted, result) || ...);
    return HostString::adopt(isArgument ? SysAllocString16(result) : result);
  }(detail::convert<Parameters>(std::forward<Arguments>(arguments))...);
}

/// Calls a routine that returns an integer or a `HostBool`.
///
/// @param routine    host routine
/// @param arguments  as in the overload for host strings
/// @return           result of @p routine
/// @throws std::bad_alloc
template <typename... Parameters, typename... Arguments>
int32_t call(int32_t (*routine)(Parameters...), Arguments&&... arguments) {
  return routine(detail::convert<Parameters>(std::forward<Arguments>(arguments))...);
}

/// @}
}  // namespace quvard

/// @cond
// A call with a bool argument selects one of these or is ambiguous. They return void, so that
// quvard::call() does not match them.
void VB_LocalAN2(BSTR, BSTR, BSTR, bool, bool, bool) = delete;
void VB_LowerFirst(BSTR, BSTR, bool) = delete;
void VB_OptimalFormat(double, int32_t, bool, bool) = delete;
void Int05(double, bool) = delete;
void Int05c(double, bool) = delete;
void Int05LU(double, bool, bool) = delete;
void LinearInterpol(double, double, double, double, double*, double*, bool) = delete;
void QuadraticInterpol(double, double, double, double, double, double, double*, double*, double*,
                       bool) = delete;
#ifdef QUVARDBS1C_WIDE_ROUTINES
void LocalAN(std::wstring, std::wstring, std::wstring, bool, bool, bool) = delete;
void LowerFirst(std::wstring, std::wstring, bool) = delete;
void OptimalFormat(double, int32_t, bool, bool) = delete;
#endif
/// @endcond

#endif
