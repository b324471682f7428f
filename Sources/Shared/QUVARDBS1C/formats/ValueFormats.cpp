#include <cmath>
#include <cstdint>

#include "host/HostBool.h"
#include "host/HostFrame.h"
#include "numerics/Constants.h"
#include "numerics/TruncLng.h"
#include "numerics/WholeDistance.h"

using quvard::givenOut;
using quvard::isSet;
using quvard::kWholeTolerance;
using quvard::TruncLng;

namespace {

// The two routines differ in what counts as whole: for OutputFormat what lies near a whole number
// on either side, NaN and the infinities included; for OptimalFormat what lies just off a 32-bit
// integer on the side away from zero.
bool isNearWhole(double x) { return !(quvard::wholeDistance(x) > kWholeTolerance); }
bool isWholeLng(double x) { return std::abs(TruncLng(x) - x) < kWholeTolerance; }

const wchar_t* exponentPart(std::int32_t exponent, std::int32_t decimals) {
  if (exponent < -std::int64_t{decimals}) return exponent <= -10 ? L"E-00" : L"E-0";
  if (exponent >= 5) return exponent >= 10 ? L"E+00" : L"E+0";
  return L"";
}

}  // namespace

std::wstring OutputFormat(double value) {
  std::wstring pattern = isNearWhole(value) ? L"0" : L"0.###################";
  if (!isNearWhole(value * 1e19)) pattern += L"E-#";
  return pattern;
}

std::wstring OptimalFormat(double value, std::int32_t decimals, HostBool useExponent,
                           HostBool keepDecimals) {
  const double magnitude = std::abs(value);
  const bool mayScale = isSet(useExponent) && magnitude > kWholeTolerance && !std::isinf(magnitude);
  const std::int32_t exponent = mayScale ? TruncLng(std::log10(magnitude)) : 0;
  const std::wstring scale = mayScale ? exponentPart(exponent, decimals) : L"";

  const bool isPlain =
      isWholeLng(value) || (!scale.empty() && !isSet(keepDecimals) &&
                            isWholeLng(std::pow(10.0, -static_cast<double>(exponent)) * value));
  return (isPlain ? L"0" : DecimalFormat(decimals)) + scale;
}

BSTR VB_OutputFormat(double value) { return givenOut(OutputFormat(value)); }

BSTR VB_OptimalFormat(double value, std::int32_t decimals, HostBool useExponent,
                      HostBool keepDecimals) {
  return givenOut(OptimalFormat(value, decimals, useExponent, keepDecimals));
}
