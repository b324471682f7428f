#include "support/SmallScopes.h"
#include "support/Stepwise.h"

namespace {

TEST(Remainders, Mod) {
  const auto integers = integersNear(40, {-65536, 65536});
  forEach([](int32_t a, int32_t b) { expectSame("Mod", Mod, stepwise::Mod, a, b); }, integers,
          integers);
}

}  // namespace
