#include "support/Expectations.h"

TEST(Boundary, KeepsEveryCodeUnit) {
  EXPECT_GIVES(convToWstring, allUnits(), allUnits());
  EXPECT_GIVES(VB_StrLeft, allUnits(), allUnits(), -1);
}
