#ifndef QUVARDBS1C_NUMERICS_WHOLEDISTANCE_H
#define QUVARDBS1C_NUMERICS_WHOLEDISTANCE_H

#include <cmath>

namespace quvard {

// Where a number is tested for being whole, this much is the usual tolerance.
inline constexpr double kWholeTolerance = 1e-12;

// The distance of x from the nearest whole number; 0 for an infinity, NaN for NaN.
inline double wholeDistance(double x) {
  double whole = 0.0;
  const double below = std::abs(std::modf(x, &whole));
  const double above = 1.0 - below;
  return above < below ? above : below;
}

}  // namespace quvard

#endif
