// The square root that refuses a negative argument by its value.
#ifndef QUVARDBS1C_NUMERICS_GUARDEDROOT_H
#define QUVARDBS1C_NUMERICS_GUARDEDROOT_H

#include <cmath>

#include "numerics/Constants.h"

namespace quvard {

inline double guardedRoot(double x) { return 0.0 > x ? -ExtremeDbl : std::sqrt(x); }

}  // namespace quvard

#endif
