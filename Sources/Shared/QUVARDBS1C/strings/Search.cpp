#include <algorithm>
#include <bitset>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "host/Boundary.h"
#include "host/HostBool.h"
#include "strings/PatternSearch.h"

using quvard::TextBuffer;
using quvard::wideText;

namespace {

// The set of code units of a short text. A table of low bytes excludes most other units quickly.
class FewUnits {
 public:
  explicit FewUnits(std::wstring_view units) : units_(units) {
    for (const wchar_t unit : units) lowBytes_[unit & 0xFF] = true;
  }

  bool contains(wchar_t unit) const {
    return lowBytes_[unit & 0xFF] && units_.find(unit) != units_.npos;
  }

 private:
  std::wstring_view units_;
  bool lowBytes_[0x100] = {};
};

// The set of code units of a text of any length: a bit set up to 0xFFFF, a sorted array above.
class ManyUnits {
 public:
  // Reorders the units, which must outlive the set.
  explicit ManyUnits(std::span<wchar_t> units)
      : wide_(std::partition(units.begin(), units.end(), isNarrow), units.end()) {
    for (const wchar_t unit : units.first(units.size() - wide_.size())) {
      narrow_->set(static_cast<std::size_t>(unit));
    }
    std::sort(wide_.begin(), wide_.end());
  }

  bool contains(wchar_t unit) const {
    return isNarrow(unit) ? narrow_->test(static_cast<std::size_t>(unit))
                          : std::binary_search(wide_.begin(), wide_.end(), unit);
  }

 private:
  static bool isNarrow(wchar_t unit) { return static_cast<uint32_t>(unit) <= 0xFFFF; }

  // On the heap, because threads can have small stacks.
  std::unique_ptr<std::bitset<0x10000>> narrow_ = std::make_unique<std::bitset<0x10000>>();
  std::span<wchar_t> wide_;
};

template <typename Set>
bool containsAny(const Set& set, std::wstring_view text) {
  return std::any_of(text.begin(), text.end(), [&set](wchar_t unit) { return set.contains(unit); });
}

bool containsAnyOf(std::wstring_view text, std::wstring_view units) {
  return std::any_of(units.begin(), units.end(),
                     [text](wchar_t unit) { return text.find(unit) != text.npos; });
}

// May reorder `chars`.
HostBool haveCommonUnit(std::wstring_view text, std::span<wchar_t> chars) {
  const std::wstring_view units(chars.data(), chars.size());
  if (units.size() <= 8) return quvard::hostBool(containsAnyOf(text, units));
  if (units.size() <= 64) return quvard::hostBool(containsAny(FewUnits(units), text));
  return quvard::hostBool(containsAny(ManyUnits(chars), text));
}

int32_t countOccurrences(std::wstring_view text, std::wstring_view pattern) {
  return static_cast<int32_t>(quvard::PatternSearch<wchar_t>(pattern).count(text));
}

}  // namespace

HostBool CommonChar(std::wstring text, std::wstring chars) { return haveCommonUnit(text, chars); }

int32_t cChrCount(std::wstring text, std::wstring pattern) {
  return countOccurrences(text.c_str(), pattern.c_str());
}

HostBool VB_CommonChar(BSTR text, BSTR chars) {
  const TextBuffer wide(wideText(text));
  TextBuffer wideChars(wideText(chars));
  return haveCommonUnit(wide, wideChars);
}

int32_t ChrCount(BSTR text, BSTR pattern) {
  if (text == nullptr || pattern == nullptr) return 0;
  const TextBuffer wide(wideText(text));
  return countOccurrences(wide, wideText(pattern));
}
