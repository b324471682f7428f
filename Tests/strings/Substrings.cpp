#include "support/SmallScopes.h"

namespace {

const std::vector<Text> kTexts{L"", L"a", L"ab", L"Hello"};

}  // namespace

TEST(StrLeft, OfEveryLength) {
  EXPECT_SAME(StrLeft, reference::StrLeft, kTexts, integersNear(9));
  EXPECT_SAME(VB_StrLeft, reference::StrLeft, kTexts, integersNear(9));
}

TEST(StrRight, OfEveryLength) {
  EXPECT_SAME(StrRight, reference::StrRight, kTexts, integersNear(9));
  EXPECT_SAME(VB_StrRight, reference::StrRight, kTexts, integersNear(9));
}
