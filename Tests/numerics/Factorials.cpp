#include "support/Expectations.h"

namespace {

double stepwise(int32_t n) {
  double r = 1.0;
  for (int32_t i = 2; i <= n; ++i) r = r * i;
  return r;
}

TEST(Factorials, Fact) {
  expectRows("Fact", Fact, {22, 1124000727777607680000.0}, {170, 7.257415615307994e+306},
             {171, kInf}, {kLowest, 1}, {kHighest, kInf});
  for (int32_t n = -2; n <= 300; ++n) expectSame("Fact", Fact, stepwise, n);
}

}  // namespace
