#include <cmath>

#include "QUVARDBS1C.h"
#include "host/HostBool.h"
#include "numerics/Constants.h"
#include "numerics/Sign.h"
#include "numerics/StrictDoubles.h"
#include "numerics/TruncLng.h"

double Int05(double v, HostBool half) noexcept {
  const double m = std::fabs(v);
  const double sign = quvard::sign(v);
  if (std::floor(m) == m) return sign * m;
  const double next = std::floor(m + 1.0);
  if (!quvard::isSet(half)) return sign * next;
  const double toHalf = (quvard::TruncLng(m + 1.0) - m) - 0.5;
  return sign * (toHalf < quvard::kIntegerTolerance ? next : next - 0.5);
}

double Int05c(double v, HostBool half) noexcept {
  const double m = std::fabs(v);
  const double sign = quvard::sign(v);
  if (std::floor(m) == m) return sign * m;
  const double closest = std::floor(quvard::kClosestOffset + m);
  const double above = m - closest;
  if (!quvard::isSet(half) || std::fabs(above) - 0.25 < quvard::kIntegerTolerance) {
    return sign * closest;
  }
  return sign * (closest + std::copysign(0.5, above));
}

double Int05LU(double v, HostBool half, HostBool lower) noexcept {
  const double floor = std::floor(v);
  if (floor == v) return v;
  const double middle = 0.5 + floor;
  if (quvard::isTrue(lower)) return quvard::isSet(half) && middle <= v ? middle : floor;
  return quvard::isSet(half) && middle >= v ? middle : std::floor(1.0 + v);
}
