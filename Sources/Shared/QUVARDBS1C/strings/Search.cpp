#include <algorithm>
#include <bitset>
#include <cstdint>
#include <string_view>

#include "host/HostBool.h"
#include "host/HostFrame.h"
#include "strings/PatternSearch.h"
#include "strings/UnitBlocks.h"

using quvard::callWide;

namespace {

// Up to this many units are looked for one by one; more of them go into a set.
constexpr std::size_t kFewUnits = 8;

class UnitSet {
 public:
  explicit UnitSet(std::wstring_view units) {
    for (const wchar_t unit : units) {
      if (isNarrow(unit)) {
        narrow_.set(static_cast<std::size_t>(unit));
      } else {
        beyond_.push_back(unit);
      }
    }
    std::sort(beyond_.begin(), beyond_.end());
  }

  bool holds(wchar_t unit) const {
    return isNarrow(unit) ? narrow_.test(static_cast<std::size_t>(unit))
                          : std::binary_search(beyond_.begin(), beyond_.end(), unit);
  }

 private:
  static bool isNarrow(wchar_t unit) { return static_cast<std::uint32_t>(unit) <= 0xFFFF; }

  std::bitset<0x10000> narrow_;
  std::wstring beyond_;
};

HostBool commonUnit(std::wstring_view text, std::wstring_view chars) {
  bool found = false;
  if (chars.size() <= kFewUnits) {
    found = std::any_of(chars.begin(), chars.end(),
                        [text](wchar_t unit) { return text.find(unit) != text.npos; });
  } else {
    const UnitSet set(chars);
    found = std::any_of(text.begin(), text.end(), [&set](wchar_t unit) { return set.holds(unit); });
  }
  return quvard::hostBool(found);
}

std::int32_t occurrences(std::wstring_view text, std::wstring_view pattern) {
  if (pattern.empty()) return 0;
  if (pattern.size() == 1) {
    return static_cast<std::int32_t>(quvard::countOf(text, pattern.front()));
  }
  const quvard::PatternSearch<wchar_t> search(pattern);
  std::int32_t count = 0;
  for (std::size_t at = 0; (at = search.find(text, at)) != text.npos; at += pattern.size()) {
    ++count;
  }
  return count;
}

}  // namespace

HostBool CommonChar(std::wstring text, std::wstring chars) { return commonUnit(text, chars); }

std::int32_t cChrCount(std::wstring text, std::wstring pattern) {
  return occurrences(text.c_str(), pattern.c_str());
}

HostBool VB_CommonChar(BSTR text, BSTR chars) { return callWide(commonUnit, text, chars); }

std::int32_t ChrCount(BSTR text, BSTR pattern) {
  if (text == nullptr || pattern == nullptr) return 0;
  return callWide(occurrences, text, pattern);
}
