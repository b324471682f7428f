#include <numeric>

#include "support/Random.h"
#include "support/SmallScopes.h"

namespace {

// Euclid's algorithm step by step, with the floored remainder.
double stepwiseLCD2(double a, double b) {
  while (b != 0.0) {
    const int32_t r = Mod(truncated(a), truncated(b));
    a = b;
    b = r;
  }
  return std::fabs(a);
}

int32_t stepwiseLCD(int32_t a, int32_t b) { return truncated(stepwiseLCD2(a, b)); }

bool isNearWhole(double t) {
  return std::fabs(t - std::nearbyint(t)) <= std::ldexp(std::fabs(t), -48);
}

double places(double t) {
  double count = 0.0;
  for (; std::fabs(std::fmod(t, 1.0)) > 1e-12 && !isNearWhole(t); t = t * 10.0) count += 1.0;
  return count;
}

double stepwiseLCDDbl(double a, double b) {
  const double p = std::fmax(places(a), places(b));
  const auto scaled = [p](double t) {
    t = t * std::pow(10.0, p);
    return isNearWhole(t) ? std::nearbyint(t) : std::trunc(t);
  };
  return std::pow(10.0, -p) * stepwiseLCD2(scaled(a), scaled(b));
}

TEST(Divisors, WorkedValues) {
  expectRows("LCD", LCD, {12, 18, 6}, {12, -18, 6}, {kLowest, 0, kLowest}, {kLowest, -1, 1},
             {kLowest, kLowest, kLowest});
  expectRows("LCD2", LCD2, {6, 2.5, 2.5}, {6, 0.5, 6}, {1e10, 3, 1}, {-1.5, -0.0, 1.5},
             {6, -2.5, 2.5}, {kLowest, kLowest, 2147483648.0}, {0.5, kInf, kInf});
  expectRows("LCDDbl", LCDDbl, {0.5, 0.75, 0.25}, {1.2, 0.3, 0.30000000000000004}, {1e-12, 1, 1},
             {1.1e-12, 1, 1e-13}, {1000000000.5, 1, 0.2}, {0.29, 0.29, 0.29}, {4.35, 1.45, 1.45},
             {0.57, 1, 0.01}, {kInf, 2, 2}, {0x1p47 + 0.5, 3, 1}, {0, 0x1p51 + 1.5, 0x1p51 + 2});
}

TEST(Divisors, OfIntegersNearTheLimits) {
  const auto integers = integersNear(40, {-65536, 65536});
  forEach([](int32_t a, int32_t b) { expectSame("LCD", LCD, stepwiseLCD, a, b); }, integers,
          integers);
}

TEST(Divisors, AsStepwise) {
  Random random;
  for (int i = 0; i < 20000 && !HasFailure(); ++i) {
    const int32_t whole = random.integer();
    const double edge = random.edge(), small = random.between(-9.0, 9.0);
    expectSame("LCD2", LCD2, stepwiseLCD2, random.between(-3e9, 3e9), edge);
    expectSame("LCDDbl", LCDDbl, stepwiseLCDDbl, random.between(0.0, 1e-9), 1.0);
    expectSame("LCDDbl", LCDDbl, stepwiseLCDDbl, random.between(-1e15, 1e16), whole / 1e3);
    const double other = i % 2 == 0 ? random.edge() : random.between(-9.0, 9.0);
    for (const double x : {edge, small}) {
      expectSame("LCD2", LCD2, stepwiseLCD2, x, other);
      expectSame("LCDDbl", LCDDbl, stepwiseLCDDbl, x, other);
    }
  }
}

// Of i / 10^places and j / 10^places, i and j of any size that fits 32 bits.
TEST(Divisors, OfDecimals) {
  Random random;
  for (int i = 0; i < 50000 && !HasFailure(); ++i) {
    const double scale = std::pow(10.0, static_cast<double>(random.below(10)));
    const int32_t a = random.integer(), b = random.integer();
    const double expected = static_cast<double>(std::gcd(int64_t{a}, int64_t{b})) / scale;
    EXPECT_NEAR(LCDDbl(a / scale, b / scale), expected, 4e-16 * expected)
        << shownCall("LCDDbl", a / scale, b / scale);
  }
}

}  // namespace
