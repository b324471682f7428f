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

TEST(Slices, ByDelimiter) {
  for (const auto& [text, opening, closing, including, between] :
       {row(L"a(b)c(d)", L"(", L")", L"(b)", L"b"), row(L"x)y(z)", L"(", L")", L"", L"z"),
        row(L"a/b/c", L"/", L"/", L"/", L"b"), row(L"abcd", L"ab", L"d", L"", L""),
        row(L"abcd", L"", L"cd", L"abc", L"b"), row(L"abc", L"a", L"", L"a", L""),
        row(L"aabbbbbbbbbbbbbbbbbbbb", L"", L"bbbbbbbbbbbbbbbbbbbb", L"aab", L"a")}) {
    EXPECT_GIVES(cStrBetweenChrAndChr, between, text, opening, closing);
    EXPECT_GIVES(StrBetweenChrAndChr, between, text, opening, closing);
    EXPECT_GIVES(StrFromChrToChr, including, text, opening, closing);
  }
  EXPECT_GIVES(cStrBetweenChrAndChr, L"a", L"\0a\0b"s, L"\0"s, L"\0"s);
}
