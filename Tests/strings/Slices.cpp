#include "support/SmallScopes.h"

namespace {

const std::vector<Text> kTexts{L"", L"a", L"ab", L"abcdefghi"};

}  // namespace

TEST(StrFromTo, AtEveryPairOfPositions) {
  EXPECT_SAME(StrFromTo, stepwise::StrFromTo, kTexts, integersNear(11), integersNear(11));
}

TEST(StrBetween, AtEveryPairOfPositions) {
  EXPECT_SAME(StrBetween, stepwise::StrBetween, kTexts, integersNear(11), integersNear(11));
}

TEST(StrFromChrToChr, ByEveryDelimiter) {
  const auto texts = textsUpTo(6), delimiters = textsUpTo(2, L"abc");
  EXPECT_SAME(StrFromChrToChr, stepwise::StrFromChrToChr, texts, delimiters, delimiters);
  EXPECT_GIVES(StrFromChrToChr, L"aab", L"aa" + Text(20, L'b'), L"", Text(20, L'b'));
}

TEST(StrBetweenChrAndChr, ByEveryDelimiter) {
  const auto texts = textsUpTo(6), delimiters = textsUpTo(2, L"abc");
  EXPECT_SAME(StrBetweenChrAndChr, stepwise::cStrBetweenChrAndChr, texts, delimiters, delimiters);
  EXPECT_SAME(cStrBetweenChrAndChr, stepwise::cStrBetweenChrAndChr, texts, delimiters, delimiters);
  EXPECT_GIVES(StrBetweenChrAndChr, L"a", L"aa" + Text(20, L'b'), L"", Text(20, L'b'));
  EXPECT_GIVES(cStrBetweenChrAndChr, L"a", L"aa" + Text(20, L'b'), L"", Text(20, L'b'));
  EXPECT_GIVES(cStrBetweenChrAndChr, L"a", L"\0a\0b"s, L"\0"s, L"\0"s);
}
