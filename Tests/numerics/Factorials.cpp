#include "support/NumericReferences.h"
#include "support/SmallScopes.h"

TEST(Fact, AsTheReference) { EXPECT_SAME(Fact, stepwise::Fact, integersNear(300)); }
