#include "support/Expectations.h"

namespace {

// The double a number of steps after x, or before it.
double shifted(double x, int steps) {
  for (; steps > 0; --steps) x = above(x);
  for (; steps < 0; ++steps) x = below(x);
  return x;
}

}  // namespace

// The edges that the contract names below 0, each with the doubles on both sides of it.
TEST(GammaLn, EdgesBelowZero) {
  enum Kind { kRefused, kNan, kInfinite, kFinite };
  for (const auto& [x, steps, expected] :
       {row(-6.5, -1, kRefused),  row(-6.5, 0, kInfinite),     row(-6.5, 1, kFinite),
        row(-6.18, 0, kNan),      row(-6.0, -1, kNan),         row(-6.0, 0, kInfinite),
        row(-6.0, 1, kFinite),    row(-5.0, -1, kFinite),      row(-5.0, 0, kNan),
        row(-4.0, -1, kNan),      row(-4.0, 0, kInfinite),     row(-4.0, 1, kFinite),
        row(-3.0, -1, kFinite),   row(-3.0, 0, kNan),          row(-2.0, -2, kNan),
        row(-2.0, -1, kInfinite), row(-2.0, 2, kInfinite),     row(-2.0, 3, kFinite),
        row(-1.0, -3, kFinite),   row(-1.0, -2, kNan),         row(-1.0, 0, kNan),
        row(-1e-15, 0, kNan),     row(-4.4e-16, 0, kInfinite), row(4.4e-16, 0, kInfinite),
        row(4.5e-16, 0, kFinite)}) {
    const double result = GammaLn(shifted(x, steps));
    const Kind kind = result == -kExtreme  ? kRefused
                      : std::isnan(result) ? kNan
                      : std::isinf(result) ? kInfinite
                                           : kFinite;
    EXPECT_EQ(kind, expected) << "GammaLn(" << show(shifted(x, steps)) << ") gives " << result;
  }
}
