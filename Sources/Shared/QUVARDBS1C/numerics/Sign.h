// The sign as a number, as FSgn gives it.
#ifndef QUVARDBS1C_NUMERICS_SIGN_H
#define QUVARDBS1C_NUMERICS_SIGN_H

#include <cmath>

namespace quvard {

// 1 or -1; 0 for a zero of either sign, NaN for an infinity.
inline double sign(double x) { return x == 0.0 ? 0.0 : std::fabs(x) / x; }

}  // namespace quvard

#endif
