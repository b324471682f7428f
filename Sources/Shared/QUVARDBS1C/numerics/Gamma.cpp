#include <cmath>

#include "QUVARDBS1C.h"
#include "numerics/Constants.h"
#include "numerics/StrictDoubles.h"

double GammaLn(double x) noexcept {
  if (x == 1.0) return 0.0;
  constexpr double shift = quvard::kLanczosG - 0.5;
  if (-shift > x) return -quvard::ExtremeDbl;  // the logarithm of a negative number

  double sum = 0.0;
  double denominator = quvard::kLanczosG + x;
  for (const double coefficient : quvard::kLanczos) {
    sum += coefficient / denominator;
    denominator -= 1.0;
  }
  sum += quvard::kLanczosLast;
  const double u = (std::log(sum) + quvard::kLogSqrtTwoPi) - (shift + x);
  return std::log(shift + x) * (x - 0.5) + u;
}
