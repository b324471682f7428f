// Reference implementations of numeric routines for which the library uses another method: with
// tables, in one step or by other algorithms. The results have the same bits.
#ifndef TESTS_SUPPORT_NUMERICREFERENCES_H
#define TESTS_SUPPORT_NUMERICREFERENCES_H

#include <algorithm>
#include <utility>

#include "support/Doubles.h"

namespace reference {

// Truncates toward zero; returns the lowest integer if the result does not fit 32 bits.
inline int32_t toInt32(double x) {
  return x > -0x1p31 - 1 && x < 0x1p31 ? static_cast<int32_t>(x) : kLowest;
}

// Runs all passes. Infinity and NaN end the loop because they no longer change.
inline double Cnk(double n, double k) {
  if (k > n) return 0.0;
  if (k == n || k == 0.0) return 1.0;
  const int32_t t = toInt32(n - k);
  const int32_t m = t > k ? toInt32(k) : t;
  const double q = t > k ? n - m : k;
  double r = 1.0 + q;
  for (int32_t i = 2; i <= m && std::isfinite(r); ++i) r = ((q + i) * r) / i;
  return r;
}

// Adds `term(n, k)` for each k in order.
inline double sumOf(auto term, double n, double from, double to) {
  double sum = 0.0;
  for (double k = toInt32(from); k <= kHighest && to >= k; k += 1.0) sum += term(n, k);
  return sum;
}

inline double SumCnk(double n, double from, double to) { return sumOf(Cnk, n, from, to); }

// Rounds the quotient down.
inline int32_t Mod(int32_t a, int32_t b) {
  if (b == 0) return a;
  const int64_t quotient = toInt32(std::floor(static_cast<double>(a) / b));
  return static_cast<int32_t>(a - quotient * b);
}

// Euclid's algorithm.
inline int32_t LCD(int32_t a, int32_t b) {
  while (b != 0) a = std::exchange(b, Mod(a, b));
  return toInt32(std::fabs(a));
}

inline double LCD2(double a, double b) {
  while (b != 0.0) a = std::exchange(b, Mod(toInt32(a), toInt32(b)));
  return std::fabs(a);
}

}  // namespace reference

#endif
