#include "support/SmallScopes.h"

namespace {

double floored(int32_t a, int32_t b) {
  return b == 0 ? a : a - std::floor(static_cast<double>(a) / b) * b;
}

TEST(Remainders, Mod) {
  expectRows("Mod", Mod, {7, 3, 1}, {-7, 3, 2}, {7, -3, -2}, {-7, -3, -1}, {7, 0, 7}, {-7, 0, -7},
             {7, -1, 0}, {-6, 3, 0}, {0, -5, 0}, {kLowest, -1, 0}, {-1, kHighest, 2147483646},
             {1, kLowest, -2147483647});
  const auto integers = integersNear(40, {-65536, 65536});
  forEach([](int32_t a, int32_t b) { expectSame("Mod", Mod, floored, a, b); }, integers, integers);
}

TEST(Remainders, ModDbl) {
  expectRows("ModDbl", ModDbl, {7.5, 2, 1.5}, {-7.5, 2, 0.5}, {7.5, -2, -0.5}, {-7.5, -2, -1.5},
             {7.5, 0, kNaN}, {1, 0.1, 0.0}, {0.3, 0.1, 0.09999999999999998}, {kInf, 2, kNaN},
             {2, kInf, kNaN}, {-0.0, 2, 0.0}, {1e300, 1e-300, -kInf}, {1.7e308, -1.2e308, -kInf},
             {1e-300, -1e300, 1e-300}, {1e300, 3, 1e300 - std::floor(1e300 / 3) * 3});
}

}  // namespace
