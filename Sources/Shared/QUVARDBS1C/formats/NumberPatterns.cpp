#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string_view>

#include "host/Boundary.h"
#include "host/HostBool.h"
#include "numerics/Constants.h"
#include "numerics/TruncLng.h"
#include "numerics/WholeDistance.h"
#include "strings/WideForm.h"

using quvard::giveOut;
using quvard::isSet;
using quvard::kWholeTolerance;
using quvard::toWstring;
using quvard::TruncLng;

namespace {

// A pattern of zeros, and what follows them.
struct DecimalPattern {
  std::int32_t decimals;
  std::wstring_view exponentPart = {};

  std::size_t room() const {
    return static_cast<std::size_t>(std::max(decimals, 0)) + 2 + exponentPart.size();
  }

  wchar_t* write(wchar_t* out) const {
    *out++ = L'0';
    if (decimals > 0) {
      *out++ = L'.';
      out = std::fill_n(out, decimals, L'0');
    }
    return quvard::copyUnits(exponentPart, out);
  }
};

constexpr std::int32_t kNoOverride = -1;

// The digit before the point counts as one of the digits.
DecimalPattern digitPattern(std::int32_t digits, std::int32_t digitsOverride) {
  const std::int32_t count = digitsOverride == kNoOverride ? digits : digitsOverride;
  return {std::max(count, 1) - 1};
}

// The two routines differ in what counts as whole: for OutputFormat what is near a whole number on
// either side, NaN and the infinities included; for OptimalFormat what is just off a 32-bit integer
// on the side away from zero.
bool isNearWhole(double x) { return !(quvard::wholeDistance(x) > kWholeTolerance); }
bool isJustOffWhole(double x) { return std::abs(TruncLng(x) - x) < kWholeTolerance; }

std::wstring_view outputPattern(double value) {
  if (isNearWhole(value * 1e19)) return isNearWhole(value) ? L"0" : L"0.###################";
  return isNearWhole(value) ? L"0E-#" : L"0.###################E-#";
}

const wchar_t* exponentPart(std::int32_t exponent, std::int32_t decimals) {
  if (exponent < -std::int64_t{decimals}) return exponent <= -10 ? L"E-00" : L"E-0";
  if (exponent >= 5) return exponent >= 10 ? L"E+00" : L"E+0";
  return L"";
}

DecimalPattern optimalPattern(double value, std::int32_t decimals, HostBool useExponent,
                              HostBool keepDecimals) {
  const double magnitude = std::abs(value);
  const bool mayScale = isSet(useExponent) && magnitude > kWholeTolerance && !std::isinf(magnitude);
  const std::int32_t exponent = mayScale ? TruncLng(std::log10(magnitude)) : 0;
  const std::wstring_view scale = mayScale ? exponentPart(exponent, decimals) : L"";

  const bool isPlain = isJustOffWhole(value) ||
                       (!scale.empty() && !isSet(keepDecimals) &&
                        isJustOffWhole(std::pow(10.0, -static_cast<double>(exponent)) * value));
  return {isPlain ? 0 : decimals, scale};
}

}  // namespace

std::wstring DecimalFormat(std::int32_t decimals) { return toWstring(DecimalPattern{decimals}); }

void SetFormat(std::wstring* formats, std::int32_t count, std::int32_t digits,
               std::int32_t digitsOverride) {
  if (count < 1) return;
  std::fill_n(formats, count, toWstring(digitPattern(digits, digitsOverride)));
}

std::wstring OutputFormat(double value) { return std::wstring(outputPattern(value)); }

std::wstring OptimalFormat(double value, std::int32_t decimals, HostBool useExponent,
                           HostBool keepDecimals) {
  return toWstring(optimalPattern(value, decimals, useExponent, keepDecimals));
}

BSTR Cpp_DecimalFormat(std::int32_t decimals) { return giveOut(DecimalPattern{decimals}); }

void VB_SetFormat(BSTR* formats, std::int32_t count, std::int32_t digits,
                  std::int32_t digitsOverride) {
  if (count < 1) return;
  const quvard::TextBuffer pattern(digitPattern(digits, digitsOverride));
  std::generate_n(formats, count, [&pattern] { return SysAllocString2(pattern.c_str()); });
}

BSTR VB_OutputFormat(double value) { return giveOut(outputPattern(value)); }

BSTR VB_OptimalFormat(double value, std::int32_t decimals, HostBool useExponent,
                      HostBool keepDecimals) {
  return giveOut(optimalPattern(value, decimals, useExponent, keepDecimals));
}
