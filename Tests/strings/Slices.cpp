#include "support/Doubles.h"
#include "support/HostStrings.h"

TEST(Slices, ByPosition) {
  const B text(u"abcdef");
  const auto positions = {kLowest, -7, -1, 0, 1, 2, 3, 4, 5, 6, 7, 8, kHighest};
  for (const std::int32_t from : positions) {
    for (const std::int32_t to : positions) {
      Text including, between;
      for (std::int32_t at = from; from >= 1 && to <= 6 && at <= to; ++at) {
        including += BSTR(text)[at - 1];
        if (at > from && at < to) between += BSTR(text)[at - 1];
      }
      ASSERT_EQ(taken(StrFromTo(text, from, to)), including) << from << ' ' << to;
      ASSERT_EQ(taken(StrBetween(text, from, to)), between) << from << ' ' << to;
    }
  }
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
    SCOPED_TRACE(::testing::PrintToString(row(text, opening, closing)));
    EXPECT_EQ(cStrBetweenChrAndChr(text, opening, closing), between);
    EXPECT_EQ(taken(StrBetweenChrAndChr(B(text), B(opening), B(closing))), between);
    EXPECT_EQ(taken(StrFromChrToChr(B(text), B(opening), B(closing))), including);
  }
  EXPECT_EQ(cStrBetweenChrAndChr(L"\0a\0b"s, L"\0"s, L"\0"s), L"a");
}
