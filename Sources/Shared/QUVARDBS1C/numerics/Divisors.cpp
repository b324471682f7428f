#include <algorithm>
#include <cmath>
#include <numeric>

#include "QUVARDBS1C.h"
#include "numerics/Constants.h"
#include "numerics/TruncLng.h"

namespace {

// In 32 bits without a sign, the lowest integer has a magnitude too.
uint32_t magnitude(int32_t n) {
  const auto bits = static_cast<uint32_t>(n);
  return n < 0 ? 0U - bits : bits;
}

// Whole but for the rounding of a decimal and of up to 28 multiplications by 10, which together
// stay below 29 * 2^-53 of t.
bool isNearWhole(double t) { return std::fabs(t - std::nearbyint(t)) <= std::fabs(t) * 0x1p-48; }

double decimalPlaces(double t) {
  double places = 0.0;
  while (std::fabs(t - std::trunc(t)) > quvard::kWholeTolerance && !isNearWhole(t)) {
    places += 1.0;
    t *= 10.0;
  }
  return places;
}

double wholeNumber(double t) { return isNearWhole(t) ? std::nearbyint(t) : std::trunc(t); }

}  // namespace

int32_t LCD(int32_t a, int32_t b) noexcept {
  return static_cast<int32_t>(std::gcd(magnitude(a), magnitude(b)));
}

double LCD2(double a, double b) noexcept {
  if (b == 0.0) return std::fabs(a);
  const uint32_t divisor = magnitude(quvard::TruncLng(b));
  const uint32_t common = std::gcd(magnitude(quvard::TruncLng(a)), divisor);
  return common == divisor ? std::fabs(b) : common;
}

double LCDDbl(double a, double b) noexcept {
  const double places = std::max(decimalPlaces(a), decimalPlaces(b));
  const double scale = std::pow(10.0, places);
  return std::pow(10.0, -places) * LCD2(wholeNumber(a * scale), wholeNumber(b * scale));
}
