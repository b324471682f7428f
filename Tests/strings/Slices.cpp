#include "support/SmallScopes.h"

namespace {

const std::vector<Text> kTexts{L"", L"a", L"ab", L"abcdefghi"};

}  // namespace

TEST(StrFromTo, OfEveryPairOfPositions) {
  EXPECT_SAME(StrFromTo, reference::StrFromTo, kTexts, integersNear(11), integersNear(11));
}

TEST(StrBetween, OfEveryPairOfPositions) {
  EXPECT_SAME(StrBetween, reference::StrBetween, kTexts, integersNear(11), integersNear(11));
}

TEST(StrFromChrToChr, OfEveryDelimiter) {
  const auto texts = textsUpTo(6), delimiters = textsUpTo(2, L"abc");
  EXPECT_SAME(StrFromChrToChr, reference::StrFromChrToChr, texts, delimiters, delimiters);
  EXPECT_GIVES(StrFromChrToChr, L"aab", L"aa" + Text(20, L'b'), L"", Text(20, L'b'));
}

TEST(StrBetweenChrAndChr, OfEveryDelimiter) {
  const auto texts = textsUpTo(6), delimiters = textsUpTo(2, L"abc");
  EXPECT_SAME(StrBetweenChrAndChr, reference::cStrBetweenChrAndChr, texts, delimiters, delimiters);
  EXPECT_SAME(cStrBetweenChrAndChr, reference::cStrBetweenChrAndChr, texts, delimiters, delimiters);
  EXPECT_GIVES(StrBetweenChrAndChr, L"a", L"aa" + Text(20, L'b'), L"", Text(20, L'b'));
  EXPECT_GIVES(cStrBetweenChrAndChr, L"a", L"aa" + Text(20, L'b'), L"", Text(20, L'b'));
  EXPECT_GIVES(cStrBetweenChrAndChr, L"a", L"\0a\0b"s, L"\0"s, L"\0"s);
}
