// Doubles compared by their bits, and arguments that provoke.
#ifndef TESTS_SUPPORT_DOUBLES_H
#define TESTS_SUPPORT_DOUBLES_H

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <iomanip>
#include <limits>
#include <random>
#include <sstream>
#include <vector>

inline constexpr double kInf = std::numeric_limits<double>::infinity();
inline constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
inline constexpr double kExtreme = 1.7976931348623099e+308;
inline constexpr double kTiny = std::numeric_limits<double>::denorm_min();
inline constexpr int32_t kLowest = std::numeric_limits<int32_t>::min();
inline constexpr int32_t kHighest = std::numeric_limits<int32_t>::max();

inline double above(double x) { return std::nextafter(x, kInf); }
inline double below(double x) { return std::nextafter(x, -kInf); }

// The same bits; any NaN is the same as any other.
inline testing::AssertionResult sameBits(double actual, double expected) {
  if (std::bit_cast<uint64_t>(actual) == std::bit_cast<uint64_t>(expected) ||
      (std::isnan(actual) && std::isnan(expected))) {
    return testing::AssertionSuccess();
  }
  std::ostringstream text;
  text << std::setprecision(17) << actual << " is not " << expected << std::hexfloat << " ("
       << actual << ", " << expected << ")";
  return testing::AssertionFailure() << text.str();
}

// Random arguments, the same in every run.
class Arguments {
 public:
  // Any double, by its bits.
  double any() { return std::bit_cast<double>(bits_()); }

  double between(double low, double high) {
    return low + (high - low) * (static_cast<double>(bits_() >> 11) * 0x1p-53);
  }

  int32_t integer(int32_t low, int32_t high) {
    const auto count = static_cast<uint64_t>(int64_t{high} - low) + 1;
    return static_cast<int32_t>(low + static_cast<int64_t>(bits_() % count));
  }

  // Any integer, small ones as often as large ones.
  int32_t integer() { return static_cast<int32_t>(bits_()) >> (bits_() % 32); }

  // One of the values that stand at some edge, or any double.
  double edge() {
    static const std::vector<double> edges{
        0.0,    -0.0,   1.0,          -1.0,          0.5,           -0.5,    2.0,
        kInf,   -kInf,  kNaN,         kTiny,         -kTiny,        1e-12,   -1e-12,
        1e300,  -1e300, kExtreme,     -kExtreme,     0x1p31,        -0x1p31, 0x1p31 - 1,
        0x1p52, 0x1p53, 4294967296.0, 2147483646.75, -2147483648.5, 1e-300,  1e16};
    const uint64_t choice = bits_() % (edges.size() + 4);
    return choice < edges.size() ? edges[choice] : any();
  }

 private:
  std::mt19937_64 bits_{20240607};
};

#endif
