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
  int32_t decimals;
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

constexpr int32_t kNoOverride = -1;

// The digit before the point counts as one of the digits.
DecimalPattern digitPattern(int32_t digits, int32_t digitsOverride) {
  const int32_t count = digitsOverride == kNoOverride ? digits : digitsOverride;
  return {std::max(count, 1) - 1};
}

// The two routines differ in what counts as whole: for OutputFormat what is near a whole number on
// either side, NaN and the infinities included; for OptimalFormat what is just off a 32-bit integer
// on the side away from zero.
bool isNearWhole(double x) { return !(quvard::wholeDistance(x) > kWholeTolerance); }
bool isJustOffWhole(double x) { return std::abs(TruncLng(x) - x) < kWholeTolerance; }

const wchar_t* outputPattern(double value) {
  if (isNearWhole(value * 1e19)) return isNearWhole(value) ? L"0" : L"0.###################";
  return isNearWhole(value) ? L"0E-#" : L"0.###################E-#";
}

// The decimal exponent truncated toward zero.
int32_t exponentOf(double magnitude) { return TruncLng(std::log10(magnitude)); }

const wchar_t* exponentPart(double magnitude, int32_t decimals) {
  // Away from the powers of ten at which the part changes it is known without a logarithm.
  if (decimals > 0) {
    if (magnitude > 0.11 && magnitude < 99999) return L"";
    if (magnitude > 100001 && magnitude < 9.9e9) return L"E+0";
  }
  const int32_t exponent = exponentOf(magnitude);
  if (exponent < -int64_t{decimals}) return exponent <= -10 ? L"E-00" : L"E-0";
  if (exponent >= 5) return exponent >= 10 ? L"E+00" : L"E+0";
  return L"";
}

DecimalPattern optimalPattern(double value, int32_t decimals, HostBool useExponent,
                              HostBool keepDecimals) {
  const double magnitude = std::abs(value);
  const bool mayScale = isSet(useExponent) && magnitude > kWholeTolerance && !std::isinf(magnitude);
  const std::wstring_view scale = mayScale ? exponentPart(magnitude, decimals) : L"";

  const bool isPlain =
      isJustOffWhole(value) ||
      (!scale.empty() && !isSet(keepDecimals) &&
       isJustOffWhole(std::pow(10.0, -static_cast<double>(exponentOf(magnitude))) * value));
  return {isPlain ? 0 : decimals, scale};
}

}  // namespace

std::wstring DecimalFormat(int32_t decimals) { return toWstring(DecimalPattern{decimals}); }

void SetFormat(std::wstring* formats, int32_t count, int32_t digits, int32_t digitsOverride) {
  if (count < 1) return;
  std::fill_n(formats, count, toWstring(digitPattern(digits, digitsOverride)));
}

std::wstring OutputFormat(double value) { return outputPattern(value); }

std::wstring OptimalFormat(double value, int32_t decimals, HostBool useExponent,
                           HostBool keepDecimals) {
  return toWstring(optimalPattern(value, decimals, useExponent, keepDecimals));
}

BSTR Cpp_DecimalFormat(int32_t decimals) { return giveOut(DecimalPattern{decimals}); }

void VB_SetFormat(BSTR* formats, int32_t count, int32_t digits, int32_t digitsOverride) {
  if (count < 1) return;
  const quvard::TextBuffer pattern(digitPattern(digits, digitsOverride));
  std::generate_n(formats, count, [&pattern] { return giveOut(pattern.c_str()); });
}

BSTR VB_OutputFormat(double value) { return giveOut(outputPattern(value)); }

BSTR VB_OptimalFormat(double value, int32_t decimals, HostBool useExponent, HostBool keepDecimals) {
  return giveOut(optimalPattern(value, decimals, useExponent, keepDecimals));
}
