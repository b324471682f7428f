#include "support/NumericReferences.h"
#include "support/SmallScopes.h"

TEST(Mod, OfIntegersNearTheLimits) {
  const auto integers = integersNear(40, {-65536, 65536});
  EXPECT_SAME(Mod, stepwise::Mod, integers, integers);
}
