#include "support/SmallScopes.h"

namespace {

double floored(int32_t a, int32_t b) {
  return b == 0 ? a : a - std::floor(static_cast<double>(a) / b) * b;
}

TEST(Remainders, Mod) {
  const auto integers = integersNear(40, {-65536, 65536});
  forEach([](int32_t a, int32_t b) { expectSame("Mod", Mod, floored, a, b); }, integers, integers);
}

}  // namespace
