#include "support/SmallScopes.h"

TEST(Substrings, OfEveryLength) {
  const std::vector<Text> texts{L"", L"a", L"ab", L"Hello"};
  const auto counts = integersNear(9);
  EXPECT_SAME(StrLeft, stepwise::StrLeft, texts, counts);
  EXPECT_SAME(StrRight, stepwise::StrRight, texts, counts);
  EXPECT_SAME(VB_StrLeft, stepwise::StrLeft, texts, counts);
  EXPECT_SAME(VB_StrRight, stepwise::StrRight, texts, counts);
}
