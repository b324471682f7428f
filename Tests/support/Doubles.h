// Doubles compared by their bits, and arguments that provoke.
#ifndef TESTS_SUPPORT_DOUBLES_H
#define TESTS_SUPPORT_DOUBLES_H

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <iomanip>
#include <limits>
#include <random>
#include <sstream>
#include <utility>
#include <vector>

inline constexpr double kInf = std::numeric_limits<double>::infinity();
inline constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
inline constexpr double kExtreme = 1.7976931348623099e+308;
inline constexpr double kTiny = std::numeric_limits<double>::denorm_min();
inline constexpr int32_t kLowest = std::numeric_limits<int32_t>::min();
inline constexpr int32_t kHighest = std::numeric_limits<int32_t>::max();

inline double above(double x) { return std::nextafter(x, kInf); }
inline double below(double x) { return std::nextafter(x, -kInf); }

inline int32_t truncated(double x) {
  return std::fabs(std::trunc(x)) <= kHighest ? static_cast<int32_t>(x) : kLowest;
}

template <typename... Numbers>
std::string shown(Numbers... numbers) {
  std::ostringstream text;
  ((text << std::setprecision(17) << numbers << ' '), ...);
  return text.str();
}

// The same bits; any NaN is the same as any other.
inline testing::AssertionResult sameBits(double actual, double expected) {
  const auto bits = [](double x) { return std::bit_cast<uint64_t>(std::isnan(x) ? kNaN : x); };
  if (bits(actual) == bits(expected)) return testing::AssertionSuccess();
  return testing::AssertionFailure() << shown(actual, "is not", expected);
}

// Each row has the arguments of the routine and its result.
template <typename Result, typename... Parameters, std::size_t... columns>
void expectRows(const char* name, Result (*routine)(Parameters...),
                const double (&... rows)[columns]) {
  static_assert(((columns == sizeof...(Parameters) + 1) && ...));
  const auto expectRow = [&]<std::size_t... i>(const double* row, std::index_sequence<i...>) {
    EXPECT_TRUE(sameBits(routine(static_cast<Parameters>(row[i])...), row[sizeof...(i)]))
        << name << " of " << shown(row[i]...);
  };
  (expectRow(rows, std::index_sequence_for<Parameters...>()), ...);
}

void expectSame(const char* name, auto routine, auto reference, auto... arguments) {
  EXPECT_TRUE(sameBits(routine(arguments...), reference(arguments...)))
      << name << " of " << shown(arguments...);
}

// Random arguments, the same in every run.
class Arguments {
 public:
  double between(double low, double high) {
    return low + (high - low) * (static_cast<double>(bits_() >> 11) * 0x1p-53);
  }

  int32_t integer(int32_t low, int32_t high) {
    const auto count = static_cast<uint64_t>(int64_t{high} - low) + 1;
    return static_cast<int32_t>(low + static_cast<int64_t>(bits_() % count));
  }

  // Any integer, small ones as often as large ones.
  int32_t integer() { return integer(kLowest, kHighest) >> (bits_() % 32); }

  // A flag, with anything above the 16 bits that count.
  int32_t flag() {
    const int32_t low = std::array{0, 0xFFFF, 1, 0x8000, 0xFFFE}[bits_() % 5];
    return integer(-0x8000, 0x7FFF) * 0x10000 | low;
  }

  // A value of either sign that stands at some edge or close to it, or any double.
  double edge() {
    static const std::vector<double> edges{
        0.0,  kTiny,  1e-300,     1e-12,  0x1p-51, 1e-6,   0.25, 0.5,   1.0,      2.0,  6.5, 709.0,
        1e10, 0x1p31, 0x1p31 - 1, 0x1p32, 0x1p52,  0x1p53, 1e16, 1e300, kExtreme, kInf, kNaN};
    const uint64_t choice = bits_() % (edges.size() + 4);
    double x = choice < edges.size() ? edges[choice] : std::bit_cast<double>(bits_());
    const int32_t shift = integer(-4, 4);
    if (shift == 1) x = above(x);
    if (shift == -1) x = below(x);
    if (shift > 2) x += shift * 0.25;
    return shift % 2 == 0 ? x : -x;
  }

 private:
  std::mt19937_64 bits_{20240607};
};

#endif
