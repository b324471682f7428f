#include <chrono>

#include "support/Expectations.h"
#include "support/NumericReferences.h"
#include "support/Random.h"

namespace {

// The terms have a test of their own.
void expectSum(double n, double from, double to) {
  EXPECT_GIVES(SumCnk, stepwise::sumOf(Cnk, n, from, to), n, from, to);
}

TEST(SumCnk, AsTheReference) {
  Random random;
  // Around the places where one kind of term ends and the next begins.
  for (int i = 0; i < 3000 && !HasFailure(); ++i) {
    const double n =
        i % 2 == 0 ? static_cast<double>(random.below(121)) - 60.0 : random.between(-60.0, 60.0);
    const double far = n < 0 ? n : n + 0x1p31, from = random.between(-80.0, 80.0);
    expectSum(n, from, from + random.between(-2.0, 90.0));
    expectSum(far, from, from + 50.0);
    expectSum(n, -0x1p31 + std::fabs(from), -0x1p31 + 78.0 + n);
    expectSum(n - 0x1p31 + 48.0, kLowest, n - 0x1p31 + 58.0);
    expectSum(random.edge(), from, from + 40.0);
    expectSum(n, from - 1e3, from);
  }
  // Long runs, whose sums round to ever coarser multiples.
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

}  // namespace
