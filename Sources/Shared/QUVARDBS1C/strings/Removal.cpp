#include <algorithm>
#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "host/HostFrame.h"
#include "strings/PatternSearch.h"
#include "strings/UnitBlocks.h"

using quvard::callWide;
using quvard::copyKept;
using quvard::givenOut;

namespace {

template <typename Keep>
void keepUnits(std::wstring& s, Keep keep) {
  const wchar_t* const end = copyKept(std::wstring_view(s), s.data(), keep);
  s.resize(static_cast<std::size_t>(end - s.data()));
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
  *copyKept(text, kept.get(), [](char16_t unit) { return unit != u':'; }) = 0;
  return SysAllocString2(kept.get());
}
