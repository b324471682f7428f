#include <algorithm>
#include <cstdint>

#include "host/HostFrame.h"

using quvard::givenOut;

namespace {

constexpr std::int32_t kNoOverride = -1;

// The digit in front of the point counts as one of the digits.
std::wstring digitFormat(std::int32_t digits, std::int32_t digitsOverride) {
  const std::int32_t count = digitsOverride == kNoOverride ? digits : digitsOverride;
  return DecimalFormat(std::max(count, 1) - 1);
}

}  // namespace

std::wstring DecimalFormat(std::int32_t decimals) {
  if (decimals < 1) return L"0";
  std::wstring pattern(static_cast<std::size_t>(decimals) + 2, L'0');
  pattern[1] = L'.';
  return pattern;
}

void SetFormat(std::wstring* formats, std::int32_t count, std::int32_t digits,
               std::int32_t digitsOverride) {
  if (count < 1) return;
  std::fill_n(formats, count, digitFormat(digits, digitsOverride));
}

BSTR Cpp_DecimalFormat(std::int32_t decimals) { return givenOut(DecimalFormat(decimals)); }

void VB_SetFormat(BSTR* formats, std::int32_t count, std::int32_t digits,
                  std::int32_t digitsOverride) {
  if (count < 1) return;
  const std::wstring pattern = digitFormat(digits, digitsOverride);
  std::generate_n(formats, count, [&pattern] { return givenOut(pattern); });
}
