#include <algorithm>
#include <string_view>
#include <utility>

#include "host/Boundary.h"
#include "strings/PatternSearch.h"
#include "strings/WideForm.h"

using quvard::copyUnits;
using quvard::overwrite;
using quvard::viaBuffer;

namespace {

// The units of a text that are to stay.
template <typename Unit, typename Keep>
struct Kept {
  std::basic_string_view<Unit> text;
  Keep keep;

  std::size_t room() const { return text.size(); }

  // Without a branch for each unit: what is not kept is overwritten by the next one.
  wchar_t* write(wchar_t* out) const {
    for (const Unit unit : text) {
      *out = static_cast<wchar_t>(unit);
      out += keep(unit) ? 1 : 0;
    }
    return out;
  }
};

template <typename Unit>
auto withoutUnit(std::basic_string_view<Unit> text, Unit removed) {
  const auto keep = [removed](Unit unit) { return unit != removed; };
  return Kept<Unit, decltype(keep)>{text, keep};
}

auto withoutColons(std::u16string_view text) { return withoutUnit(text, u':'); }

auto digitsOf(std::wstring_view text) {
  const auto isDigit = [](wchar_t unit) { return unit >= L'0' && unit <= L'9'; };
  return Kept<wchar_t, decltype(isDigit)>{text, isDigit};
}

// A text after the removals of RemoveChar().
struct WithoutChars {
  std::wstring_view text;
  std::wstring_view chars;

  std::size_t room() const { return text.size(); }

  wchar_t* write(wchar_t* out) const {
    if (chars.size() == 1) return withoutUnit(text, chars.front()).write(out);
    wchar_t* const end = copyUnits(text, out);
    return chars.empty() ? end : removeFirstUnits(out, end);
  }

 private:
  // Takes the first unit out of the leftmost occurrence until there is none.
  wchar_t* removeFirstUnits(wchar_t* const start, wchar_t* const end) const {
    const quvard::PatternSearch<wchar_t> search(chars);
    wchar_t* kept = start;  // end of what is searched
    wchar_t* next = start;  // start of what is not
    for (;;) {
      const std::wstring_view rest(next, static_cast<std::size_t>(end - next));
      const std::size_t at = search.find(rest, 0);
      kept = copyUnits(rest.substr(0, at), kept);
      if (at == rest.npos) return kept;
      next += at + 1;
      // An occurrence may begin among the last units in front of the gap, so these are searched
      // again, moved to its other side.
      const std::ptrdiff_t again =
          std::min(kept - start, static_cast<std::ptrdiff_t>(chars.size()) - 1);
      next = std::copy_backward(kept - again, kept, next);
      kept -= again;
    }
  }
};

WithoutChars withoutChars(std::wstring_view text, std::wstring_view chars) { return {text, chars}; }

}  // namespace

std::wstring RemoveChar(std::wstring s, std::wstring chars) {
  overwrite(s, withoutChars(s, chars));
  return s;
}

std::wstring RemoveColon(std::wstring s) {
  overwrite(s, withoutUnit<wchar_t>(s, L':'));
  return StrLRTrim(std::move(s));
}

std::wstring RemoveSemicolon(std::wstring s) {
  overwrite(s, withoutUnit<wchar_t>(s, L';'));
  return StrLRTrim(std::move(s));
}

std::wstring RemoveNonNumericChar(std::wstring s) {
  overwrite(s, digitsOf(s));
  return s;
}

BSTR VB_RemoveChar(BSTR s, BSTR chars) { return viaBuffer(withoutChars, s, chars); }

BSTR VB_RemoveNonNumericChar(BSTR s) { return viaBuffer(digitsOf, s); }

BSTR VB_RemoveColon(BSTR s) { return s == nullptr ? nullptr : quvard::viaUnits(withoutColons, s); }
