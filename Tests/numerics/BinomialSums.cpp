#include <chrono>

#include "support/Expectations.h"
#include "support/NumericReferences.h"
#include "support/Random.h"

namespace {

// The terms are those of Cnk, which has its own tests.
void expectSum(double n, double from, double to) {
  EXPECT_GIVES(SumCnk, reference::sumOf(Cnk, n, from, to), n, from, to);
}

}  // namespace

// The larger a sum, the coarser its rounding.
TEST(SumCnk, OfManyTermsIsTheReference) {
  Random random;
  for (const double n :
       {-1.0, 0.1, 1e-20, 1234567.890123, 2.0 / 3.0 + 1e9, 0x1p31 + 0x1p20 + 0.5, kInf, kNaN}) {
    for (int i = 0; i < 2; ++i) {
      const double from = random.between(-0x1p31, -1e6);
      expectSum(n, from, from + random.between(0.0, 3e6));
    }
    expectSum(n, -1e6, n < 4e9 ? 40.0 : 1e6);
  }
  for (const double n : {5.0, 0.3, 0.5}) expectSum(n, kLowest, kLowest + 2e7);
}

TEST(SumCnk, NoArgumentRunsLong) {
  const auto start = std::chrono::steady_clock::now();
  EXPECT_GIVES(SumCnk, kInf, 4294967294.0, 0, kInf);
  EXPECT_GIVES(SumCnk, 0, -5, 0, kInf);
  EXPECT_GIVES(SumCnk, 4198660.0, 1e300, kLowest, kInf);
  EXPECT_GIVES(SumCnk, 2.3058430092123919e+18, 0.3, kLowest, kInf);
  EXPECT_GIVES(SumCnk, 0, -kInf, kLowest, kInf);
  EXPECT_GT(SumCnk(1020.5, 0, kInf), 1e307);
  for (const double n : {1e9 + 0.1, -1e9, 2147483647.75, 3e9, kInf, kNaN}) {
    EXPECT_NE(SumCnk(n, kLowest, kInf), 0.0) << n;
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
}
