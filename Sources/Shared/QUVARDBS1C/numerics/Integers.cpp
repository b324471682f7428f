#include <cmath>

#include "QUVARDBS1C.h"
#include "host/HostBool.h"
#include "numerics/Constants.h"
#include "numerics/IntegerDistance.h"
#include "numerics/StrictDoubles.h"

HostBool IsLong(double x) noexcept { return IsLongP(x, quvard::kIntegerTolerance); }

HostBool IsLongP(double x, double tol) noexcept {
  return quvard::hostBool(!(quvard::integerDistance(x) > tol));
}

HostBool IsEven(double x) noexcept {
  const double half = x * 0.5;
  return quvard::hostBool(quvard::kEvenTolerance > std::fabs(std::floor(half) - half));
}

HostBool IsEvenLng(int32_t n) noexcept { return quvard::hostBool(n % 2 == 0); }
