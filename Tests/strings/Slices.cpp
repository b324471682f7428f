#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <vector>

#include "support/HostStrings.h"

namespace {

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

TEST(Slices, ByPosition) {
  struct Row {
    std::int32_t from, to;
    std::wstring fromTo, between;
  };
  const std::vector<Row> rows{
      {1, 6, L"abcdef", L"bcde"}, {2, 5, L"bcde", L"cd"},  {2, 3, L"bc", L""},
      {3, 3, L"c", L""},          {1, 2, L"ab", L""},      {5, 6, L"ef", L""},
      {6, 6, L"f", L""},          {1, 1, L"a", L""},       {4, 6, L"def", L"e"},
      {1, 7, L"", L""},           {0, 3, L"", L""},        {-1, 3, L"", L""},
      {2, -1, L"", L""},          {1, 0, L"", L""},        {4, 3, L"", L""},
      {4, 2, L"", L""},           {6, 1, L"", L""},        {7, 6, L"", L""},
      {8, 6, L"", L""},           {kHighest, 6, L"", L""}, {kLowest, 6, L"", L""},
      {1, kHighest, L"", L""},    {1, kLowest, L"", L""},  {kHighest, kHighest, L"", L""},
      {kHighest, 0, L"", L""},
  };
  const B text(u"abcdef"), empty(u"");
  for (const Row& row : rows) {
    SCOPED_TRACE(::testing::PrintToString(std::pair(row.from, row.to)));
    EXPECT_EQ(taken(StrFromTo(text, row.from, row.to)), row.fromTo);
    EXPECT_EQ(taken(StrBetween(text, row.from, row.to)), row.between);
    for (const BSTR none : {BSTR(empty), BSTR(nullptr)}) {
      EXPECT_EQ(taken(StrFromTo(none, row.from, row.to)), L"");
      EXPECT_EQ(taken(StrBetween(none, row.from, row.to)), L"");
    }
  }
}

TEST(Slices, ByDelimiter) {
  struct Row {
    std::wstring text, opening, closing, fromTo, between;
  };
  const std::wstring twenty = L"bbbbbbbbbbbbbbbbbbbb";
  const std::vector<Row> rows{
      {L"a(b)c", L"(", L")", L"(b)", L"b"},
      {L"(x)", L"(", L")", L"(x)", L"x"},
      {L"a()c", L"(", L")", L"()", L""},
      {L"a((b))c", L"(", L")", L"((b)", L"(b"},
      {L"a(b)c(d)e", L"(", L")", L"(b)", L"b"},
      {L"a(b", L"(", L")", L"", L""},
      {L"a)b", L"(", L")", L"", L""},
      {L"ab", L"(", L")", L"", L""},
      {L"a)(b", L"(", L")", L"", L""},
      {L"x)y(z", L"(", L")", L"", L""},
      {L"x)y(z)", L"(", L")", L"", L"z"},
      {L"", L"(", L")", L"", L""},
      {L"a/b/c", L"/", L"/", L"/", L"b"},
      {L"a/b", L"/", L"/", L"/", L""},
      {L"abcd", L"ab", L"cd", L"", L""},
      {L"abcd", L"ab", L"d", L"", L""},
      {L"abcd", L"b", L"cd", L"", L""},
      {L"abc", L"", L"b", L"ab", L""},
      {L"abcd", L"", L"cd", L"abc", L"b"},
      {L"abc,d", L"", L",", L"abc,", L"bc"},
      {L"abc", L"a", L"", L"a", L""},
      {L"abc", L"b", L"", L"", L""},
      {L"abc", L"ab", L"", L"a", L""},
      {L"abc", L"c", L"", L"", L""},
      {L"abc", L"", L"", L"a", L""},
      {L"", L"", L"", L"", L""},
      {L"", L"", L"x", L"", L""},
      {L"aab" + twenty, L"", twenty, L"aab", L"a"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(::testing::PrintToString(row.text + L' ' + row.opening + L' ' + row.closing));
    EXPECT_EQ(cStrBetweenChrAndChr(row.text, row.opening, row.closing), row.between);
    const B text(row.text), opening(row.opening), closing(row.closing);
    EXPECT_EQ(taken(StrBetweenChrAndChr(text, opening, closing)), row.between);
    EXPECT_EQ(taken(StrFromChrToChr(text, opening, closing)), row.fromTo);
  }
  EXPECT_EQ(cStrBetweenChrAndChr(std::wstring(L"\0a\0b", 4), std::wstring(1, L'\0'),
                                 std::wstring(1, L'\0')),
            L"a");
}

}  // namespace
