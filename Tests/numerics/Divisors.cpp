#include <numeric>

#include "support/NumericReferences.h"
#include "support/Random.h"
#include "support/SmallScopes.h"

TEST(LCD, OfIntegersNearTheLimits) {
  const auto integers = integersNear(40, {-65536, 65536});
  EXPECT_SAME(LCD, stepwise::LCD, integers, integers);
}

// Of i / 10^places and j / 10^places, i and j of any size that fits 32 bits.
TEST(LCDDbl, OfDecimals) {
  Random random;
  for (int i = 0; i < 50000 && !HasFailure(); ++i) {
    const double scale = std::pow(10.0, static_cast<double>(random.below(10)));
    const int32_t a = random.integer(), b = random.integer();
    const double expected = static_cast<double>(std::gcd(int64_t{a}, int64_t{b})) / scale;
    EXPECT_NEAR(LCDDbl(a / scale, b / scale), expected, 4e-16 * expected)
        << showCall("LCDDbl", a / scale, b / scale);
  }
}
