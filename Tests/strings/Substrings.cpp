#include "support/SmallScopes.h"

namespace {

const std::vector<Text> kTexts{L"", L"a", L"ab", L"Hello"};

}  // namespace

TEST(StrLeft, OfEveryLength) {
  EXPECT_SAME(StrLeft, stepwise::StrLeft, kTexts, integersNear(9));
  EXPECT_SAME(VB_StrLeft, stepwise::StrLeft, kTexts, integersNear(9));
}

TEST(StrRight, OfEveryLength) {
  EXPECT_SAME(StrRight, stepwise::StrRight, kTexts, integersNear(9));
  EXPECT_SAME(VB_StrRight, stepwise::StrRight, kTexts, integersNear(9));
}
