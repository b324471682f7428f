#include <chrono>

#include "QUVARDBS1C.h"
#include "support/Doubles.h"

namespace {

// The steps one by one, with every pass.
double stepwiseFact(int32_t n) {
  double r = 1.0;
  for (int32_t i = 2; i <= n; ++i) r = r * i;
  return r;
}

double stepwiseCnk(double n, double k) {
  if (k > n) return 0.0;
  if (k == n || k == 0.0) return 1.0;
  int32_t m = truncated(n - k);
  double q = k;
  if (m > k) {
    m = truncated(k);
    q = n - m;
  }
  double r = 1.0 + q;
  for (int32_t i = 2; i <= m; ++i) r = ((q + i) * r) / i;
  return r;
}

double stepwiseSum(double n, double from, double to) {
  double sum = 0.0;
  for (double i = truncated(from); i <= kHighest && to >= i; i += 1.0) sum += stepwiseCnk(n, i);
  return sum;
}

TEST(Combinatorics, WorkedValues) {
  expectRows("Fact", Fact, {22, 1124000727777607680000.0}, {170, 7.257415615307994e+306},
             {171, kInf}, {kLowest, 1});
  for (int32_t n = -2; n <= 300; ++n) expectSame(Fact, stepwiseFact, n);
  expectRows("Cnk", Cnk, {0, 0, 1}, {100, 50, 1.0089134454556422e+29},
             {1020, 510, 2.8062677682996257e+305}, {2147483649.0, 2, 2.305843010287436e+18},
             {2147483650.0, 2, 3}, {5.5, 2, 12.375}, {5, 4.5, 5.5}, {5, -kInf, 2147483654.0});
  expectRows("SumCnk", SumCnk, {5, 0, 5, 32}, {5, 2.7, 3.9, 20}, {5, kHighest, kInf, 0},
             {1e300, kLowest, kInf, 4198660.0}, {0.3, kLowest, kInf, 2.3058430092123919e+18},
             {kNaN, 2147483647.75, 2147483647.0, 2147483648.0},
             {kInf, 2147483646.0, 1e10, 4294967295.0}, {-kInf, kLowest, kInf, 0},
             {5, -1e10, -2147483648.0, -2147483647.0}, {5, kNaN, -2147483647.5, -2147483647.0},
             {5, -1e10, -2147483649.0, 0}, {2000, 0, 2000, kInf});
}

TEST(Combinatorics, CnkAsStepwise) {
  for (int n = 0; n <= 1100; n += n < 130 ? 1 : 9) {
    for (int k = 0; k <= n; k += n < 130 ? 1 : 7) expectSame(Cnk, stepwiseCnk, n, k);
  }
  Arguments arguments;
  for (int i = 0; i < 20000 && !HasFailure(); ++i) {
    const double n = arguments.between(-20.0, 1200.0), k = arguments.between(-20.0, 40.0);
    expectSame(Cnk, stepwiseCnk, n, arguments.between(-20.0, n));
    expectSame(Cnk, stepwiseCnk, n, k);
    expectSame(Cnk, stepwiseCnk, n + k, n);
    expectSame(Cnk, stepwiseCnk, std::floor(n), std::floor(k));
    expectSame(Cnk, stepwiseCnk, std::floor(n * 2.5), arguments.integer(0, 700));
    expectSame(Cnk, stepwiseCnk, arguments.between(0.0, 4e9), k);
    // Every pass is run in the reference, so that edges are kept to its short runs.
    const double a = arguments.edge(), b = arguments.edge(), passes = std::fabs(a - b);
    if (!(passes > 1e4 && passes < 0x1p31)) expectSame(Cnk, stepwiseCnk, a, b);
  }
}

TEST(Combinatorics, SumCnkAsStepwise) {
  Arguments arguments;
  // Around the places where one kind of term ends and the next begins.
  for (int i = 0; i < 3000 && !HasFailure(); ++i) {
    const double n = i % 2 == 0 ? arguments.integer(-60, 60) : arguments.between(-60.0, 60.0);
    const double far = n < 0 ? n : n + 0x1p31, from = arguments.between(-80.0, 80.0);
    expectSame(SumCnk, stepwiseSum, n, from, from + arguments.between(-2.0, 90.0));
    expectSame(SumCnk, stepwiseSum, far, from, from + 50.0);
    expectSame(SumCnk, stepwiseSum, n, -0x1p31 + std::fabs(from), -0x1p31 + 78.0 + n);
    expectSame(SumCnk, stepwiseSum, n - 0x1p31 + 48.0, kLowest, n - 0x1p31 + 58.0);
    expectSame(SumCnk, stepwiseSum, arguments.edge(), from, from + 40.0);
  }
  // Long runs, whose sums round to ever coarser multiples.
  for (const double n :
       {-1.0, 0.1, 1e-20, 1234567.890123, 2.0 / 3.0 + 1e9, 0x1p31 + 0x1p20 + 0.5, kInf, kNaN}) {
    for (int i = 0; i < 2; ++i) {
      const double from = arguments.between(-0x1p31, -1e6);
      expectSame(SumCnk, stepwiseSum, n, from, from + arguments.between(0.0, 3e6));
    }
    expectSame(SumCnk, stepwiseSum, n, -1e6, n < 4e9 ? 40.0 : 1e6);
  }
  for (const double n : {5.0, 0.3}) expectSame(SumCnk, stepwiseSum, n, kLowest, kLowest + 2e7);
}

TEST(Combinatorics, NoArgumentRunsLong) {
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(Fact(kHighest), kInf);
  EXPECT_EQ(Cnk(4294967294.0, 2147483647.0), kInf);
  EXPECT_EQ(Cnk(4294967294.5, 2147483647.25), kInf);
  EXPECT_EQ(Cnk(0x1p53, 0x1p53 - 2147483646.0), kInf);
  EXPECT_EQ(SumCnk(4294967294.0, 0, kInf), kInf);
  EXPECT_EQ(SumCnk(-5, 0, kInf), 0.0);
  EXPECT_GT(SumCnk(1020.5, 0, kInf), 1e307);
  for (const double n : {0.3, 1e9 + 0.1, -1e9, 2147483647.75, 3e9, 1e300, kInf, kNaN}) {
    EXPECT_NE(SumCnk(n, kLowest, kInf), 0.0) << n;
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
}

}  // namespace
