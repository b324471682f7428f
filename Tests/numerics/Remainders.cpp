#include <cmath>

#include "QUVARDBS1C.h"
#include "support/Doubles.h"

namespace {

TEST(Remainders, Mod) {
  struct Row {
    int32_t a, b, expected;
  };
  const std::vector<Row> rows{
      {7, 3, 1},        {-7, 3, 2},  {7, -3, -2},
      {-7, -3, -1},     {7, 0, 7},   {-7, 0, -7},
      {6, -3, 0},       {-6, 3, 0},  {0, 5, 0},
      {0, -5, 0},       {7, 1, 0},   {7, -1, 0},
      {kLowest, -1, 0}, {1, -2, -1}, {-1, kHighest, 2147483646},
      {-1, 2, 1},       {0, 0, 0},   {1, kLowest, -2147483647},
  };
  for (const auto& [a, b, expected] : rows) EXPECT_EQ(Mod(a, b), expected) << a << ", " << b;

  // The floored quotient in doubles; products and differences wrap.
  Arguments arguments;
  for (int i = 0; i < 50000; ++i) {
    const int32_t a = arguments.integer(), b = arguments.integer();
    if (b == 0) continue;
    const double quotient = std::floor(static_cast<double>(a) / b);
    const auto q = quotient < 2147483648.0 ? static_cast<int32_t>(quotient) : kLowest;
    const auto product = static_cast<uint32_t>(q) * static_cast<uint32_t>(b);
    ASSERT_EQ(Mod(a, b), static_cast<int32_t>(static_cast<uint32_t>(a) - product))
        << a << ", " << b;
  }
}

TEST(Remainders, ModDbl) {
  struct Row {
    double a, b, expected;
  };
  const std::vector<Row> rows{
      {7.5, 2, 1.5},
      {-7.5, 2, 0.5},
      {7.5, -2, -0.5},
      {-7.5, -2, -1.5},
      {7.5, 0, kNaN},
      {0, 0, kNaN},
      {1, 0.1, 0.0},
      {6, 3, 0.0},
      {0.3, 0.1, 0.09999999999999998},
      {kInf, 2, kNaN},
      {2, kInf, kNaN},
      {kNaN, 2, kNaN},
      {-0.0, 2, 0.0},
      {1e300, 3, 1e300 - std::floor(1e300 / 3) * 3},
  };
  for (const auto& [a, b, expected] : rows) {
    EXPECT_TRUE(sameBits(ModDbl(a, b), expected)) << a << ", " << b;
  }
}

}  // namespace
