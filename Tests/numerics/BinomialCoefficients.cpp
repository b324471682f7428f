#include <chrono>

#include "support/Expectations.h"
#include "support/NumericReferences.h"

TEST(Cnk, OfIntegersIsTheReference) {
  for (int n = 0; n <= 1100; n += n < 130 ? 1 : 9) {
    for (int k = 0; k <= n && !HasFailure(); k += n < 130 ? 1 : 7) {
      EXPECT_GIVES(Cnk, reference::Cnk(n, k), n, k);
    }
  }
}

TEST(Cnk, NoArgumentRunsLong) {
  const auto start = std::chrono::steady_clock::now();
  EXPECT_GIVES(Cnk, kInf, 4294967294.0, 2147483647.0);
  EXPECT_GIVES(Cnk, kInf, 4294967294.5, 2147483647.25);
  EXPECT_GIVES(Cnk, kInf, 0x1p53, 0x1p53 - 2147483646.0);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
}
