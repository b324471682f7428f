#include <chrono>

#include "support/NumericReferences.h"
#include "support/Random.h"
#include "support/SmallScopes.h"

namespace {

void expectCnk(double n, double k) { EXPECT_GIVES(Cnk, stepwise::Cnk(n, k), n, k); }

TEST(Cnk, AsTheReference) {
  for (int n = 0; n <= 1100; n += n < 130 ? 1 : 9) {
    for (int k = 0; k <= n; k += n < 130 ? 1 : 7) expectCnk(n, k);
  }
  Random random;
  for (int i = 0; i < 20000 && !HasFailure(); ++i) {
    const double n = random.between(-20.0, 1200.0), k = random.between(-20.0, 40.0);
    const double small = random.between(0.0, 140.0);
    expectCnk(n, random.between(-20.0, n));
    expectCnk(n, k);
    expectCnk(n + k, n);
    expectCnk(std::floor(n), std::floor(k));
    expectCnk(std::floor(n * 2.5), static_cast<double>(random.below(701)));
    // One of two arguments is integral, so the first factor may be integral too.
    expectCnk(small, std::floor(random.between(0.0, small)));
    expectCnk(std::floor(small), random.between(0.0, small));
    expectCnk(random.between(0.0, 4e9), k);
    // Every pass is run in the reference, so that edges are kept to its short runs.
    const double a = random.edge(), b = random.edge(), passes = std::fabs(a - b);
    if (!(passes > 1e4 && passes < 0x1p31)) expectCnk(a, b);
  }
}

TEST(Cnk, NoArgumentRunsLong) {
  const auto start = std::chrono::steady_clock::now();
  EXPECT_GIVES(Cnk, kInf, 4294967294.0, 2147483647.0);
  EXPECT_GIVES(Cnk, kInf, 4294967294.5, 2147483647.25);
  EXPECT_GIVES(Cnk, kInf, 0x1p53, 0x1p53 - 2147483646.0);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
}

}  // namespace
