// The steps of the numeric contracts, written down plainly, with the bits of their results: what tests
// compare with, and what benchmarks time the routines against.
#ifndef BENCHMARKS_TRANSCRIPTIONS_H
#define BENCHMARKS_TRANSCRIPTIONS_H

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

#include "QUVARDBS1C.h"
#include "numerics/Constants.h"
#include "numerics/TruncLng.h"

namespace transcribed {

using quvard::TruncLng;

inline bool isTrue(HostBool flag) { return (flag & 0xFFFF) == 0xFFFF; }

inline double sqr(double x) { return 0.0 > x ? -quvard::ExtremeDbl : std::sqrt(x); }

inline double expm1x(double x) {
  if (x > 709.0) return quvard::ExtremeDbl;
  return std::fabs(x) > 1e-6 ? std::exp(x) + (-1.0) : 0.5 * x * x + x;
}

inline double ASin(double x) {
  if (x == 0.0) return 0.0;
  if (std::fabs(x) == 1.0) return std::copysign(quvard::kHalfPi, x);
  return std::atan(x / sqr((1.0 - x) * (x + 1.0)));
}

inline double LogExpAPlusExpB(double a, double b) {
  return std::log(std::exp(-std::fabs(a - b)) + 1.0) + (b > a ? b : a);
}

inline double GammaLn(double x) {
  if (x == 1.0) return 0.0;
  if (-6.5 > x) return -quvard::ExtremeDbl;
  double s = 0.0;
  double d = 7.0 + x;
  for (const double a : quvard::kLanczos) {
    s = s + a / d;
    d = d + (-1.0);
  }
  s = s + quvard::kLanczosLast;
  const double u = (std::log(s) + quvard::kLogSqrtTwoPi) - (6.5 + x);
  return std::log(6.5 + x) * (x + (-0.5)) + u;
}

// From 171 on it is infinite.
inline double Fact(int32_t n) {
  double r = 1.0;
  for (int32_t i = 2; i <= std::min(n, 171); ++i) r = r * i;
  return r;
}

// An r that is infinite, or NaN, stays so.
inline double Cnk(double n, double k) {
  if (k > n) return 0.0;
  if (k == n || k == 0.0) return 1.0;
  const int32_t t = TruncLng(n - k);
  const int32_t m = t > k ? TruncLng(k) : t;
  const double q = t > k ? n - m : k;
  double r = 1.0 + q;
  for (int32_t i = 2; i <= m && std::isfinite(r); ++i) r = ((q + i) * r) / i;
  return r;
}

// The sum of given terms, in order.
inline double sumOf(auto term, double n, double from, double to) {
  double sum = 0.0;
  for (double k = TruncLng(from); k <= 2147483647.0 && to >= k; k += 1.0) sum = sum + term(n, k);
  return sum;
}

inline double SumCnk(double n, double from, double to) { return sumOf(Cnk, n, from, to); }

inline int32_t Mod(int32_t a, int32_t b) {
  if (b == 0) return a;
  const int64_t quotient = TruncLng(std::floor(static_cast<double>(a) / b));
  return static_cast<int32_t>(a - quotient * b);
}

inline double ModDbl(double a, double b) { return a - std::floor(a / b) * b; }

inline int32_t LCD(int32_t a, int32_t b) {
  while (b != 0) a = std::exchange(b, Mod(a, b));
  return TruncLng(std::fabs(a));
}

inline double LCD2(double a, double b) {
  if (b == 0.0) return std::fabs(a);
  for (int32_t r = 1; r != 0;) {
    r = Mod(TruncLng(a), TruncLng(b));
    a = std::exchange(b, r);
  }
  return std::fabs(a);
}

inline bool isWholeButForRounding(double t) {
  return std::fabs(t - std::nearbyint(t)) <= std::fabs(t) * 0x1p-48;
}

inline double toWhole(double t) {
  return isWholeButForRounding(t) ? std::nearbyint(t) : std::trunc(t);
}

inline double LCDDbl(double a, double b) {
  double places = 0.0;
  for (const double x : {a, b}) {
    double p = 0.0;
    for (double t = x; std::fabs(t - std::trunc(t)) > 1e-12 && !isWholeButForRounding(t);
         t *= 10.0) {
      p += 1.0;
    }
    places = std::max(places, p);
  }
  const double scale = std::pow(10.0, places);
  return std::pow(10.0, -places) * LCD2(toWhole(a * scale), toWhole(b * scale));
}

inline HostBool IsLongP(double x, double tol) {
  double whole = 0.0;
  const double fraction = std::fabs(std::modf(x, &whole));
  return (1.0 - fraction < fraction ? 1.0 - fraction : fraction) > tol ? 0 : -1;
}

inline HostBool IsLong(double x) { return IsLongP(x, 1e-12); }

inline HostBool IsEven(double x) {
  return 0x1p-52 > std::fabs(std::floor(x * 0.5) - x * 0.5) ? -1 : 0;
}

inline HostBool IsEvenLng(int32_t n) { return n % 2 == 0 ? -1 : 0; }

inline double signOf(double v) { return v == 0.0 ? 0.0 : std::fabs(v) / v; }

inline double Int05(double v, HostBool half) {
  const double m = std::fabs(v);
  if (std::floor(m) == m) return signOf(v) * m;
  const double n = std::floor(m + 1.0);
  if ((half & 0xFFFF) == 0) return signOf(v) * n;
  const double d = (TruncLng(m + 1.0) - m) + (-0.5);
  return signOf(v) * (1e-12 > d ? n : n + (-0.5));
}

inline double Int05c(double v, HostBool half) {
  const double m = std::fabs(v);
  if (std::floor(m) == m) return signOf(v) * m;
  double n = std::floor(quvard::kClosestOffset + m);
  if ((half & 0xFFFF) != 0) {
    const double t = m - n;
    if (!(1e-12 > -0.25 + std::fabs(t))) n += t > 0.0 ? 0.5 : -0.5;
  }
  return signOf(v) * n;
}

inline double Int05LU(double v, HostBool half, HostBool lower) {
  const double f = std::floor(v);
  if (f == v) return v;
  const double g = 0.5 + f;
  const bool isHalf = (half & 0xFFFF) != 0;
  if (isTrue(lower)) return isHalf && g <= v ? g : f;
  return isHalf && g >= v ? g : std::floor(1.0 + v);
}

inline int32_t LinearInterpol(double x1, double x2, double y1, double y2, double* x, double* y,
                              HostBool forward) {
  if (x1 == x2) {
    *x = x1;
    *y = (y1 + y2) * 0.5;
    return -1;
  }
  const double a = (y2 - y1) / (x2 - x1), b = (x2 * y1 - x1 * y2) / (x2 - x1);
  if (isTrue(forward)) {
    *y = b + a * *x;
  } else if (a != 0.0) {
    *x = (*y - b) / a;
  } else {
    return -1;
  }
  return 0;
}

inline int32_t QuadraticInterpol(double x1, double x2, double x3, double y1, double y2, double y3,
                                 double* x, double* xSecond, double* y, HostBool forward) {
  if (x1 == x2 || x2 == x3 || x1 == x3) return -1;
  const double xs[] = {x1, x2, x3, x1, x2}, ys[] = {y1, y2, y3, y1, y2};
  const auto divisor = [&](int i) {
    return (xs[i] + xs[i + 1]) * xs[i + 2] - (xs[i] + xs[i + 2]) * xs[i + 1];
  };
  const auto divides = [](double value) { return value < 0.0 || value > 0.0; };
  int i = divides(divisor(0)) ? 0 : divides(divisor(1)) ? 1 : 2, j = i + 1;
  const int k = i + 2;
  const double factor = (1.0 / divisor(i)) / ((xs[j] - xs[i]) * (xs[k] - xs[i]));
  const double p = ((xs[j] * xs[j]) * ys[i] - (xs[i] * xs[i]) * ys[j]) * ((xs[k] - xs[i]) * xs[k]);
  const double q = ((xs[i] * xs[i]) * ys[k] - (xs[k] * xs[k]) * ys[i]) * ((xs[j] - xs[i]) * xs[j]);
  const double c = (q + p) * factor;
  i = divides(x1 * x2) ? 0 : divides(x2 * x3) ? 1 : 2, j = i + 1;
  const double ii = xs[i] * xs[i], jj = xs[j] * xs[j];
  const double b =
      ((jj * ys[i] + (ii - jj) * c) - ii * ys[j]) / ((xs[i] * xs[j]) * (xs[j] - xs[i]));
  i = x1 * x1 == 0.0 ? 1 : 0;
  const double a = ((ys[i] - xs[i] * b) - c) / (xs[i] * xs[i]);
  if (isTrue(forward)) {
    *y = c + (b + a * *x) * *x;
  } else if (a != 0.0) {
    const double root = sqr((c - *y) * (-4.0 * a) + b * b);
    const double lower = a > 0.0 ? -b - root : root - b, upper = a > 0.0 ? root - b : -b - root;
    *x = (lower * 0.5) / a;
    *xSecond = (0.5 * upper) / a;
  } else if (b != 0.0) {
    *x = (*y - c) / b;
  } else {
    return -1;
  }
  return 0;
}

}  // namespace transcribed

#endif
