#include "support/SmallScopes.h"

TEST(Slices, AtEveryPairOfPositions) {
  const std::vector<Text> texts{L"", L"a", L"ab", L"abcdefghi"};
  EXPECT_SAME(StrFromTo, stepwise::StrFromTo, texts, integersNear(11), integersNear(11));
  EXPECT_SAME(StrBetween, stepwise::StrBetween, texts, integersNear(11), integersNear(11));
}

TEST(Slices, ByEveryDelimiter) {
  const auto texts = textsUpTo(6), delimiters = textsUpTo(2, L"abc");
  EXPECT_SAME(StrFromChrToChr, stepwise::StrFromChrToChr, texts, delimiters, delimiters);
  EXPECT_SAME(StrBetweenChrAndChr, stepwise::cStrBetweenChrAndChr, texts, delimiters, delimiters);
  EXPECT_SAME(cStrBetweenChrAndChr, stepwise::cStrBetweenChrAndChr, texts, delimiters, delimiters);
}

TEST(Slices, ByLongDelimiter) {
  const Text closing(20, L'b'), text = L"aa" + closing;
  EXPECT_GIVES(cStrBetweenChrAndChr, L"a", text, L"", closing);
  EXPECT_GIVES(StrBetweenChrAndChr, L"a", text, L"", closing);
  EXPECT_GIVES(StrFromChrToChr, L"aab", text, L"", closing);
  EXPECT_GIVES(cStrBetweenChrAndChr, L"a", L"\0a\0b"s, L"\0"s, L"\0"s);
}
