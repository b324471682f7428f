#include <numeric>

#include "support/Expectations.h"
#include "support/Random.h"

// Of i / 10^places and j / 10^places, where i and j are any 32-bit integers.
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
