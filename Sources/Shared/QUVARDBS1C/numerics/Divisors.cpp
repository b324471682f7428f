#include <algorithm>
#include <bit>
#include <cmath>

#include "QUVARDBS1C.h"
#include "numerics/Constants.h"
#include "numerics/StrictDoubles.h"
#include "numerics/TruncLng.h"

namespace {

// In 32 bits without a sign, the lowest integer has a magnitude too.
uint32_t magnitude(int32_t n) {
  const auto bits = static_cast<uint32_t>(n);
  return n < 0 ? 0U - bits : bits;
}

// The largest common divisor. One division brings a far larger number down; from there subtractions
// and shifts (binary algorithm, J. Stein, 1967) take half the time of further divisions, and of
// std::gcd.
uint32_t commonDivisor(uint32_t a, uint32_t b) {
  if (b == 0) return a;
  a %= b;
  if (a == 0) return b;
  const int twos = std::countr_zero(a | b);
  b >>= std::countr_zero(b);
  int zeros = std::countr_zero(a);
  while (a != 0) {
    a >>= zeros;
    const int64_t difference = int64_t{b} - int64_t{a};
    // A number and its negative end in as many zeros. So they are counted here, while the
    // processor also works out which of a and b is the smaller one, and not after that.
    zeros = std::countr_zero(static_cast<uint32_t>(difference));
    b = std::min(a, b);
    a = static_cast<uint32_t>(difference < 0 ? -difference : difference);
  }
  return b << twos;
}

// Whole but for the rounding of a decimal and of up to 28 multiplications by 10, which together
// are below 29 * 2^-53 of t.
bool isWholeButForRounding(double t) {
  return std::fabs(t - std::nearbyint(t)) <= std::fabs(t) * 0x1p-48;
}

double decimalPlaces(double t) {
  double places = 0.0;
  while (std::fabs(t - std::trunc(t)) > quvard::kIntegerTolerance && !isWholeButForRounding(t)) {
    places += 1.0;
    t *= 10.0;
  }
  return places;
}

double toWhole(double t) { return isWholeButForRounding(t) ? std::nearbyint(t) : std::trunc(t); }

}  // namespace

int32_t LCD(int32_t a, int32_t b) noexcept {
  return static_cast<int32_t>(commonDivisor(magnitude(a), magnitude(b)));
}

double LCD2(double a, double b) noexcept {
  if (b == 0.0) return std::fabs(a);
  const uint32_t divisor = magnitude(quvard::TruncLng(b));
  const uint32_t common = commonDivisor(magnitude(quvard::TruncLng(a)), divisor);
  return common == divisor ? std::fabs(b) : common;
}

double LCDDbl(double a, double b) noexcept {
  const double places = std::max(decimalPlaces(a), decimalPlaces(b));
  const double scale = std::pow(10.0, places);
  return std::pow(10.0, -places) * LCD2(toWhole(a * scale), toWhole(b * scale));
}
