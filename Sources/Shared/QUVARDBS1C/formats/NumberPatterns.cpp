#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "host/Boundary.h"
#include "host/HostBool.h"
#include "numerics/Constants.h"
#include "numerics/IntegerDistance.h"
#include "numerics/StrictDoubles.h"
#include "numerics/TruncLng.h"

using quvard::isSet;
using quvard::kIntegerTolerance;
using quvard::TextBuffer;
using quvard::TruncLng;

using namespace std::string_view_literals;

namespace {

// A pattern of zeros, and the exponent part after them.
struct DecimalPattern {
  int32_t decimals;
  std::wstring_view exponentPart = {};

  void appendTo(auto& output) const {
    output.reserve(static_cast<std::size_t>(std::max(decimals, 0)) + 2 + exponentPart.size());
    output.push_back(L'0');
    if (decimals > 0) {
      output.push_back(L'.');
      output.append(static_cast<std::size_t>(decimals), L'0');
    }
    output.append(exponentPart);
  }
};

std::wstring wide(const DecimalPattern& pattern) {
  std::wstring text;
  pattern.appendTo(text);
  return text;
}

BSTR newHostString(const DecimalPattern& pattern) {
  TextBuffer text;
  pattern.appendTo(text);
  return quvard::newHostString(text);
}

constexpr int32_t kNoOverride = -1;

// The digit before the point counts as one of the digits.
DecimalPattern digitPattern(int32_t digits, int32_t digitsOverride) {
  const int32_t count = digitsOverride == kNoOverride ? digits : digitsOverride;
  return {std::max(count, 1) - 1};
}

// OutputFormat and OptimalFormat differ in what counts as whole: for the one what is near a whole
// number on either side, NaN and the infinities included; for the other what is near the 32-bit
// integer that it is truncated to, so a number just nearer to zero than a whole one does not count.
bool isNearWhole(double x) { return !(quvard::integerDistance(x) > kIntegerTolerance); }
bool isNearTruncated(double x) { return std::abs(TruncLng(x) - x) < kIntegerTolerance; }

const wchar_t* outputPattern(double value) {
  if (isNearWhole(value * 1e19)) return isNearWhole(value) ? L"0" : L"0.###################";
  return isNearWhole(value) ? L"0E-#" : L"0.###################E-#";
}

// The powers of ten with an exponent of at most kHighestPower either way.
constexpr int32_t kHighestPower = 12;
constexpr double kPowersOfTen[] = {1e-12, 1e-11, 1e-10, 1e-9, 1e-8, 1e-7, 1e-6, 1e-5, 1e-4,
                                   1e-3,  1e-2,  1e-1,  1e0,  1e1,  1e2,  1e3,  1e4,  1e5,
                                   1e6,   1e7,   1e8,   1e9,  1e10, 1e11, 1e12};
static_assert(std::size(kPowersOfTen) == 2 * kHighestPower + 1);
static_assert(kPowersOfTen[0] <= kIntegerTolerance);

constexpr double powerOfTen(int32_t exponent) { return kPowersOfTen[exponent + kHighestPower]; }

// The logarithm and the power of the platform are slow: with the table, a call takes 30 ns instead of 50.
// They are used only beyond the powers above, and where a value is so close to a limit that their last
// bits may decide. Their error is far below kDoubt.
constexpr double kDoubt = 1e-9;

// The decimal exponent of a magnitude above kIntegerTolerance, truncated toward zero.
int32_t exponentOf(double magnitude) {
  int32_t floor = 0;
  while (floor + 1 < kHighestPower && magnitude >= powerOfTen(floor + 1)) ++floor;
  while (magnitude < powerOfTen(floor)) --floor;
  const bool isBetween = magnitude > powerOfTen(floor) * (1.0 + kDoubt) &&
                         magnitude < powerOfTen(floor + 1) * (1.0 - kDoubt);
  if (isBetween) return floor < 0 ? floor + 1 : floor;
  return TruncLng(std::log10(magnitude));
}

std::wstring_view exponentPartOf(int32_t exponent, int32_t decimals) {
  if (exponent < -int64_t{decimals}) return exponent <= -10 ? L"E-00"sv : L"E-0"sv;
  if (exponent >= 5) return exponent >= 10 ? L"E+00"sv : L"E+0"sv;
  return {};
}

bool isScaledNearTruncated(double value, int32_t exponent) {
  // Within the table either way: as an unsigned number, one that is too low is too high.
  if (static_cast<uint32_t>(exponent + kHighestPower) < std::size(kPowersOfTen)) {
    const double scaled = value * powerOfTen(-exponent);
    const double beyondWhole = std::abs(TruncLng(scaled) - scaled);
    if (beyondWhole > kDoubt && beyondWhole < 1.0 - kDoubt) return false;
  }
  return isNearTruncated(std::pow(10.0, -static_cast<double>(exponent)) * value);
}

DecimalPattern optimalPattern(double value, int32_t decimals, HostBool useExponent,
                              HostBool keepDecimals) {
  const double magnitude = std::abs(value);
  const bool mayHaveExponent =
      isSet(useExponent) && magnitude > kIntegerTolerance && !std::isinf(magnitude);
  const int32_t exponent = mayHaveExponent ? exponentOf(magnitude) : 0;
  const std::wstring_view exponentPart =
      mayHaveExponent ? exponentPartOf(exponent, decimals) : L""sv;

  const bool isPlain = isNearTruncated(value) || (!exponentPart.empty() && !isSet(keepDecimals) &&
                                                  isScaledNearTruncated(value, exponent));
  return {isPlain ? 0 : decimals, exponentPart};
}

}  // namespace

std::wstring DecimalFormat(int32_t decimals) { return wide(DecimalPattern{decimals}); }

void SetFormat(std::wstring* formats, int32_t count, int32_t digits, int32_t digitsOverride) {
  if (count < 1) return;
  std::fill_n(formats, count, wide(digitPattern(digits, digitsOverride)));
}

std::wstring OutputFormat(double value) { return outputPattern(value); }

std::wstring OptimalFormat(double value, int32_t decimals, HostBool useExponent,
                           HostBool keepDecimals) {
  return wide(optimalPattern(value, decimals, useExponent, keepDecimals));
}

BSTR Cpp_DecimalFormat(int32_t decimals) { return newHostString(DecimalPattern{decimals}); }

void VB_SetFormat(BSTR* formats, int32_t count, int32_t digits, int32_t digitsOverride) {
  if (count < 1) return;
  TextBuffer pattern;
  digitPattern(digits, digitsOverride).appendTo(pattern);
  const wchar_t* const text = pattern.c_str();
  std::generate_n(formats, count, [text] { return SysAllocString2(text); });
}

BSTR VB_OutputFormat(double value) { return SysAllocString2(outputPattern(value)); }

BSTR VB_OptimalFormat(double value, int32_t decimals, HostBool useExponent, HostBool keepDecimals) {
  return newHostString(optimalPattern(value, decimals, useExponent, keepDecimals));
}
