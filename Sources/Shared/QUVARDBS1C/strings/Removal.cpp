#include <algorithm>
#include <span>
#include <string_view>
#include <utility>

#include "host/Boundary.h"
#include "strings/Replacement.h"
#include "strings/WideForm.h"

using quvard::copyUnits;
using quvard::overwrite;
using quvard::Replaced;
using quvard::viaBuffer;

namespace {

// The units of a text that are to stay.
template <typename Keep>
struct Kept {
  std::wstring_view text;
  Keep keep;

  std::size_t room() const { return text.size(); }

  // Without a branch for each unit: one that is not kept is overwritten by the next one.
  wchar_t* write(wchar_t* out) const {
    for (const wchar_t unit : text) {
      *out = unit;
      out += keep(unit) ? 1 : 0;
    }
    return out;
  }
};

auto withoutUnit(std::wstring_view text, wchar_t removed) {
  const auto stays = [removed](wchar_t unit) { return unit != removed; };
  return Kept<decltype(stays)>{text, stays};
}

auto digitsOf(std::wstring_view text) {
  const auto isDigit = [](wchar_t unit) { return unit >= L'0' && unit <= L'9'; };
  return Kept<decltype(isDigit)>{text, isDigit};
}

Replaced<char16_t, char16_t> withoutColons(std::u16string_view text) { return {text, u":", {}}; }

// Takes the first unit out of the leftmost occurrence of `chars` until there is none, and gives what
// is left.
std::span<wchar_t> removeFirstUnits(std::span<wchar_t> text, std::wstring_view chars) {
  const quvard::PatternSearch<wchar_t> search(chars);
  wchar_t* const end = text.data() + text.size();
  wchar_t* kept = text.data();  // end of what is searched
  wchar_t* next = text.data();  // start of what is not
  for (;;) {
    const std::wstring_view rest(next, static_cast<std::size_t>(end - next));
    const std::size_t at = search.find(rest);
    kept = copyUnits(rest.substr(0, at), kept);
    if (at == rest.npos) return {text.data(), kept};
    next += at + 1;
    // An occurrence may begin among the last units before the gap, so these are searched again,
    // moved to its other side.
    const std::ptrdiff_t again =
        std::min(kept - text.data(), static_cast<std::ptrdiff_t>(chars.size()) - 1);
    next = std::copy_backward(kept - again, kept, next);
    kept -= again;
  }
}

std::span<wchar_t> removeChars(std::span<wchar_t> text, std::wstring_view chars) {
  if (chars.empty()) return text;
  if (chars.size() > 1) return removeFirstUnits(text, chars);
  return {text.data(), withoutUnit({text.data(), text.size()}, chars.front()).write(text.data())};
}

}  // namespace

std::wstring RemoveChar(std::wstring s, std::wstring chars) {
  s.resize(removeChars(s, chars).size());
  return s;
}

std::wstring RemoveColon(std::wstring s) {
  overwrite(s, withoutUnit(s, L':'));
  return StrLRTrim(std::move(s));
}

std::wstring RemoveSemicolon(std::wstring s) {
  overwrite(s, withoutUnit(s, L';'));
  return StrLRTrim(std::move(s));
}

std::wstring RemoveNonNumericChar(std::wstring s) {
  overwrite(s, digitsOf(s));
  return s;
}

BSTR VB_RemoveChar(BSTR s, BSTR chars) { return viaBuffer(removeChars, s, chars); }

BSTR VB_RemoveNonNumericChar(BSTR s) { return viaBuffer(digitsOf, s); }

BSTR VB_RemoveColon(BSTR s) { return s == nullptr ? nullptr : quvard::viaUnits(withoutColons, s); }
