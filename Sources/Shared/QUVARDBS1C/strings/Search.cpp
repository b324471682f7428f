#include <algorithm>
#include <bitset>
#include <cstdint>
#include <span>
#include <string_view>

#include "host/Boundary.h"
#include "host/HostBool.h"
#include "strings/PatternSearch.h"

using quvard::viaBuffer;

namespace {

// Up to this many units are looked for one by one; more of them go into a set.
constexpr std::size_t kFewUnits = 8;

class UnitSet {
 public:
  // Reorders the units, which outlive the set.
  explicit UnitSet(std::span<wchar_t> units)
      : beyond_(std::partition(units.begin(), units.end(), isNarrow), units.end()) {
    for (const wchar_t unit : units.first(units.size() - beyond_.size())) {
      narrow_.set(static_cast<std::size_t>(unit));
    }
    std::sort(beyond_.begin(), beyond_.end());
  }

  bool contains(wchar_t unit) const {
    return isNarrow(unit) ? narrow_.test(static_cast<std::size_t>(unit))
                          : std::binary_search(beyond_.begin(), beyond_.end(), unit);
  }

 private:
  static bool isNarrow(wchar_t unit) { return static_cast<std::uint32_t>(unit) <= 0xFFFF; }

  std::bitset<0x10000> narrow_;
  std::span<wchar_t> beyond_;  // sorted
};

// Reorders `chars`.
HostBool haveCommonUnit(std::wstring_view text, std::span<wchar_t> chars) {
  bool have = false;
  if (chars.size() <= kFewUnits) {
    have = std::any_of(chars.begin(), chars.end(),
                       [text](wchar_t unit) { return text.find(unit) != text.npos; });
  } else {
    const UnitSet set(chars);
    have =
        std::any_of(text.begin(), text.end(), [&set](wchar_t unit) { return set.contains(unit); });
  }
  return quvard::hostBool(have);
}

std::int32_t countOccurrences(std::wstring_view text, std::wstring_view pattern) {
  return static_cast<std::int32_t>(quvard::PatternSearch<wchar_t>(pattern).count(text));
}

}  // namespace

HostBool CommonChar(std::wstring text, std::wstring chars) { return haveCommonUnit(text, chars); }

std::int32_t cChrCount(std::wstring text, std::wstring pattern) {
  return countOccurrences(text.c_str(), pattern.c_str());
}

HostBool VB_CommonChar(BSTR text, BSTR chars) { return viaBuffer(haveCommonUnit, text, chars); }

std::int32_t ChrCount(BSTR text, BSTR pattern) {
  return text == nullptr || pattern == nullptr ? 0 : viaBuffer(countOccurrences, text, pattern);
}
