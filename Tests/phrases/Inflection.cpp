#include "support/SmallScopes.h"

TEST(Inflection, PluralBeginsAtTwo) {
  const std::vector<Text> one{L"case"}, more{L"cases"};
  EXPECT_SAME(SingPlural, stepwise::SingPlural, one, more, integersNear(33));
  EXPECT_SAME(VB_SingPlural, stepwise::SingPlural, one, more, integersNear(33));
}
