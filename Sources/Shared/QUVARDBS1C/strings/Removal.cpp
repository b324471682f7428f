#include <algorithm>
#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "host/HostFrame.h"
#include "strings/PatternSearch.h"

using quvard::callWide;
using quvard::givenOut;

namespace {

// Copies the units that are to stay and returns the end of the copy, which may lie in the units
// themselves. No branch depends on a unit, so every text takes the same time.
template <typename Unit, typename Keep>
wchar_t* copyKept(const Unit* first, const Unit* last, wchar_t* out, Keep keep) {
  for (; first != last; ++first) {
    const Unit unit = *first;
    *out = static_cast<wchar_t>(unit);
    out += keep(unit) ? 1 : 0;
  }
  return out;
}

template <typename Keep>
void keepUnits(std::wstring& s, Keep keep) {
  wchar_t* const units = s.data();
  s.resize(static_cast<std::size_t>(copyKept(units, units + s.size(), units, keep) - units));
}

void removeUnit(std::wstring& s, wchar_t removed) {
  keepUnits(s, [removed](wchar_t unit) { return unit != removed; });
}

}  // namespace

std::wstring RemoveChar(std::wstring s, std::wstring chars) {
  if (chars.size() == 1) removeUnit(s, chars.front());
  if (chars.size() <= 1 || quvard::PatternSearch<wchar_t>(chars).find(s, 0) == s.npos) return s;

  const quvard::PrefixMatcher<wchar_t> matcher(chars);
  std::vector<std::uint32_t> matched(s.size() + 1);  // by the number of units kept
  std::size_t kept = 0;
  for (std::size_t next = 0; next < s.size();) {
    s[kept] = s[next++];
    matched[kept + 1] = matcher.advanced(matched[kept], s[kept]);
    ++kept;
    if (matched[kept] == chars.size()) {
      // The first unit of the occurrence goes. The others are read again behind what stands in
      // front, with which they may form an occurrence that lies further left.
      kept -= chars.size();
      next -= chars.size() - 1;
      std::copy(chars.begin() + 1, chars.end(), s.begin() + static_cast<std::ptrdiff_t>(next));
    }
  }
  s.resize(kept);
  return s;
}

std::wstring RemoveColon(std::wstring s) {
  removeUnit(s, L':');
  return StrLRTrim(std::move(s));
}

std::wstring RemoveSemicolon(std::wstring s) {
  removeUnit(s, L';');
  return StrLRTrim(std::move(s));
}

std::wstring RemoveNonNumericChar(std::wstring s) {
  keepUnits(s, [](wchar_t unit) { return unit >= L'0' && unit <= L'9'; });
  return s;
}

BSTR VB_RemoveChar(BSTR s, BSTR chars) { return givenOut(callWide(RemoveChar, s, chars)); }

BSTR VB_RemoveNonNumericChar(BSTR s) { return givenOut(callWide(RemoveNonNumericChar, s)); }

BSTR VB_RemoveColon(BSTR s) {
  if (s == nullptr) return nullptr;
  const std::u16string_view text = quvard::unitsOf(s);
  const std::unique_ptr<wchar_t[]> kept(new wchar_t[text.size() + 1]);
  *copyKept(text.data(), text.data() + text.size(), kept.get(),
            [](char16_t unit) { return unit != u':'; }) = 0;
  return SysAllocString2(kept.get());
}
