#include <algorithm>
#include <cmath>
#include <numeric>

#include "QUVARDBS1C.h"
#include "support/Doubles.h"

namespace {

// Euclid's algorithm step by step, with the floored remainder.
int32_t stepwiseLCD(int32_t a, int32_t b) {
  while (b != 0) {
    const int32_t r = Mod(a, b);
    a = b;
    b = r;
  }
  return a < 0 ? static_cast<int32_t>(0U - static_cast<uint32_t>(a)) : a;
}

int32_t truncated(double x) {
  return x >= -2147483648.0 && x < 2147483648.0 ? static_cast<int32_t>(x) : kLowest;
}

double stepwiseLCD2(double a, double b) {
  if (b == 0.0) return std::fabs(a);
  for (;;) {
    const int32_t ia = truncated(a), ib = truncated(b);
    const int32_t r = Mod(ia, ib);
    a = b;
    b = r;
    if (r == 0) return std::fabs(a);
  }
}

bool nearWhole(double t) {
  const double n = std::nearbyint(t);
  return std::fabs(t - n) <= std::fabs(t) * std::ldexp(1.0, -48);
}

double stepwiseLCDDbl(double a, double b) {
  double whole;
  double places[2] = {0.0, 0.0};
  const double arguments[2] = {a, b};
  for (int i = 0; i < 2; ++i) {
    for (double t = arguments[i]; std::fabs(std::modf(t, &whole)) > 1e-12 && !nearWhole(t);
         t = t * 10.0) {
      places[i] = places[i] + 1.0;
    }
  }
  const double p = std::max(places[0], places[1]);
  const double s = std::pow(10.0, p);
  double scaled[2];
  for (int i = 0; i < 2; ++i) {
    const double product = arguments[i] * s;
    std::modf(product, &whole);
    scaled[i] = nearWhole(product) ? std::nearbyint(product) : whole;
  }
  return std::pow(10.0, -p) * stepwiseLCD2(scaled[0], scaled[1]);
}

TEST(Divisors, LCD) {
  struct Row {
    int32_t a, b, expected;
  };
  const std::vector<Row> rows{
      {12, 18, 6},
      {-12, 18, 6},
      {12, -18, 6},
      {-12, -18, 6},
      {18, 12, 6},
      {7, 13, 1},
      {5, 0, 5},
      {-5, 0, 5},
      {0, 5, 5},
      {0, -5, 5},
      {0, 0, 0},
      {kLowest, 0, kLowest},
      {0, kLowest, kLowest},
      {kLowest, -1, 1},
      {kLowest, kLowest, kLowest},
      {kLowest, 2, 2},
      {6, kLowest, 2},
      {kHighest, kLowest, 1},
  };
  for (const auto& [a, b, expected] : rows) EXPECT_EQ(LCD(a, b), expected) << a << ", " << b;

  Arguments arguments;
  for (int i = 0; i < 50000; ++i) {
    const int32_t a = arguments.integer(), b = arguments.integer();
    ASSERT_EQ(LCD(a, b), stepwiseLCD(a, b)) << a << ", " << b;
    ASSERT_TRUE(sameBits(LCD2(a, b), stepwiseLCD2(a, b))) << a << ", " << b;
  }
}

TEST(Divisors, LCD2) {
  struct Row {
    double a, b, expected;
  };
  const std::vector<Row> rows{
      {6, 2.5, 2.5},       {7, 2.5, 1},       {6, 0.5, 6},     {0.5, 0.25, 0.25},
      {1e10, 3, 1},        {-5, 0, 5},        {1.5, 0, 1.5},   {0, 0, 0},
      {-1.5, -0.0, 1.5},   {12, -18, 6},      {6, -2.5, 2.5},  {kLowest, kLowest, 2147483648.0},
      {kLowest, 3e9, 3e9}, {0.5, kInf, kInf}, {kNaN, 0, kNaN}, {0, kNaN, kNaN},
      {3, kNaN, 1},        {kNaN, 6, 2},      {0.5, 3, 3},
  };
  for (const auto& [a, b, expected] : rows) {
    EXPECT_TRUE(sameBits(LCD2(a, b), expected)) << a << ", " << b;
  }
  Arguments arguments;
  for (int i = 0; i < 50000; ++i) {
    for (const auto& [a, b] :
         {std::pair(arguments.edge(), arguments.edge()),
          std::pair(arguments.between(-9.0, 9.0), arguments.between(-9.0, 9.0)),
          std::pair(arguments.between(-3e9, 3e9), arguments.edge())}) {
      ASSERT_TRUE(sameBits(LCD2(a, b), stepwiseLCD2(a, b))) << a << ", " << b;
    }
  }
}

TEST(Divisors, LCDDbl) {
  struct Row {
    double a, b, expected;
  };
  const std::vector<Row> rows{
      {0.5, 0.75, 0.25},
      {6, 4, 2},
      {2.5, 7.5, 2.5},
      {0.1, 0.25, 0.05},
      {0.001, 0.0025, 0.0005},
      {-0.5, 0.75, 0.25},
      {0.5, 0, 0.5},
      {0, 0.5, 0.5},
      {0, 0, 0},
      {1.2, 0.3, 0.30000000000000004},
      {1e-13, 1, 1},
      {1e-12, 1, 1},
      {1.1e-12, 1, 1e-13},
      {1000000000.5, 1, 0.2},
      {0.29, 0.29, 0.29},
      {0.29, 1, 0.01},
      {4.35, 1.45, 1.45},
      {0.57, 1, 0.01},
      {123456.789, 0.001, 0.001},
      {kInf, 2, 2},
      {2, kInf, 2},
      {kNaN, 1, 1},
      {0x1p47 + 0.5, 3, 1},
      {1, 0x1p51 + 0.5, 1},
      {0, 0x1p51 + 1.5, 0x1p51 + 2},
  };
  for (const auto& [a, b, expected] : rows) {
    EXPECT_TRUE(sameBits(LCDDbl(a, b), expected)) << a << ", " << b;
  }
  Arguments arguments;
  for (int i = 0; i < 30000; ++i) {
    for (const auto& [a, b] :
         {std::pair(arguments.edge(), arguments.edge()),
          std::pair(arguments.between(-9.0, 9.0), arguments.between(-9.0, 9.0)),
          std::pair(arguments.between(0.0, 1e-9), 1.0),
          std::pair(arguments.between(-1e15, 1e16), arguments.integer() / 1e3)}) {
      ASSERT_TRUE(sameBits(LCDDbl(a, b), stepwiseLCDDbl(a, b))) << a << ", " << b;
    }
  }
}

// Of i / 10^places and j / 10^places, i and j of any size that fits 32 bits.
TEST(Divisors, OfDecimals) {
  Arguments arguments;
  for (int i = 0; i < 50000; ++i) {
    const int32_t places = arguments.integer(0, 9);
    const double scale = std::pow(10.0, places);
    const int32_t a = arguments.integer(), b = arguments.integer();
    const auto divisor = static_cast<double>(std::gcd(int64_t{a}, int64_t{b}));
    const double expected = divisor / scale;
    ASSERT_NEAR(LCDDbl(a / scale, b / scale), expected, 4e-16 * expected)
        << a << ", " << b << ", " << places;
  }
}

}  // namespace
