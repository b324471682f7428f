// Edge values of numbers.
#ifndef TESTS_SUPPORT_DOUBLES_H
#define TESTS_SUPPORT_DOUBLES_H

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

inline constexpr double kInf = std::numeric_limits<double>::infinity();
inline constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
inline constexpr double kExtreme = 1.7976931348623099e+308;
inline constexpr double kTiny = std::numeric_limits<double>::denorm_min();
inline constexpr int32_t kLowest = std::numeric_limits<int32_t>::min();
inline constexpr int32_t kHighest = std::numeric_limits<int32_t>::max();

inline double above(double x) { return std::nextafter(x, kInf); }
inline double below(double x) { return std::nextafter(x, -kInf); }

// Whether the bits are the same. All NaNs are the same.
inline bool same(double a, double b) {
  return std::bit_cast<uint64_t>(a) == std::bit_cast<uint64_t>(b) ||
         (std::isnan(a) && std::isnan(b));
}

#endif
