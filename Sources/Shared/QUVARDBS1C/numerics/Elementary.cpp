#include <cmath>

#include "QUVARDBS1C.h"
#include "numerics/Constants.h"
#include "numerics/Sign.h"
#include "numerics/StrictDoubles.h"

double Pi(void) noexcept { return quvard::kPi; }

double sqr(double x) noexcept { return 0.0 > x ? -quvard::ExtremeDbl : std::sqrt(x); }

double Log10(double x) noexcept { return std::log10(x); }

double spow(double base, double exponent) noexcept { return std::pow(base, exponent); }

double expm1x(double x) noexcept {
  if (x > quvard::kExpLimit) return quvard::ExtremeDbl;
  if (std::fabs(x) > quvard::kSeriesLimit) return std::exp(x) - 1.0;
  return 0.5 * x * x + x;
}

double ASin(double x) noexcept {
  if (x == 0.0) return 0.0;
  if (x == -1.0) return -quvard::kHalfPi;
  if (x == 1.0) return quvard::kHalfPi;
  return std::atan(x / sqr((1.0 - x) * (x + 1.0)));
}

double Min(double a, double b) noexcept { return a < b ? a : b; }

double Max(double a, double b) noexcept { return a > b ? a : b; }

double FSgn(double x) noexcept { return quvard::sign(x); }

double FSign(double a, double b) noexcept { return b < 0.0 ? -std::fabs(a) : std::fabs(a); }

double LogExpAPlusExpB(double a, double b) noexcept {
  return std::log(std::exp(-std::fabs(a - b)) + 1.0) + Max(b, a);
}
