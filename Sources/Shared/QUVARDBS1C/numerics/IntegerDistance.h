// What IsLong, IsLongP and OutputFormat compare with their tolerance.
#ifndef QUVARDBS1C_NUMERICS_INTEGERDISTANCE_H
#define QUVARDBS1C_NUMERICS_INTEGERDISTANCE_H

#include <cmath>

namespace quvard {

// The distance of x from the nearest whole number; 0 for an infinity, NaN for NaN.
inline double integerDistance(double x) {
  double whole = 0.0;
  const double fraction = std::fabs(std::modf(x, &whole));
  const double rest = 1.0 - fraction;
  return rest < fraction ? rest : fraction;
}

}  // namespace quvard

#endif
