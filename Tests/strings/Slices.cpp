#include "support/SmallScopes.h"
#include "support/Stepwise.h"

TEST(Slices, AtEveryPairOfPositions) {
  const std::vector<Text> texts{L"", L"a", L"ab", L"abcdefghi"};
  forEach(
      [](const Text& text, int32_t from, int32_t to) {
        EXPECT_GIVES(StrFromTo, stepwise::StrFromTo(text, from, to), text, from, to);
        EXPECT_GIVES(StrBetween, stepwise::StrBetween(text, from, to), text, from, to);
      },
      texts, integersNear(11), integersNear(11));
}

TEST(Slices, ByDelimiter) {
  for (const auto& [text, opening, closing, including, between] :
       {row(L"a(b)c(d)", L"(", L")", L"(b)", L"b"), row(L"()c", L"(", L")", L"()", L""),
        row(L"((b))", L"(", L")", L"((b)", L"(b"), row(L"a(b", L"(", L")", L"", L""),
        row(L"a)b", L"(", L")", L"", L""), row(L"x)y(z)", L"(", L")", L"", L"z"),
        row(L"a/b/c", L"/", L"/", L"/", L"b"), row(L"a/b", L"/", L"/", L"/", L""),
        row(L"abcd", L"ab", L"cd", L"", L""), row(L"abcd", L"ab", L"d", L"", L""),
        row(L"abcd", L"b", L"cd", L"", L""), row(L"abc", L"", L"b", L"ab", L""),
        row(L"abcd", L"", L"cd", L"abc", L"b"), row(L"abc", L"a", L"", L"a", L""),
        row(L"abc", L"b", L"", L"", L""), row(L"abc", L"", L"", L"a", L""),
        row(L"aabbbbbbbbbbbbbbbbbbbb", L"", L"bbbbbbbbbbbbbbbbbbbb", L"aab", L"a")}) {
    EXPECT_GIVES(cStrBetweenChrAndChr, between, text, opening, closing);
    EXPECT_GIVES(StrBetweenChrAndChr, between, text, opening, closing);
    EXPECT_GIVES(StrFromChrToChr, including, text, opening, closing);
  }
  EXPECT_GIVES(cStrBetweenChrAndChr, L"a", L"\0a\0b"s, L"\0"s, L"\0"s);
}
