#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <vector>

#include "support/HostStrings.h"

namespace {

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

TEST(Substrings, LeftAndRight) {
  struct Row {
    std::wstring s;
    std::int32_t n;
    std::wstring left;
    std::wstring right;
  };
  const std::vector<Row> rows{
      {L"Hello", 0, L"", L""},
      {L"Hello", 1, L"H", L"o"},
      {L"Hello", 2, L"He", L"lo"},
      {L"Hello", 4, L"Hell", L"ello"},
      {L"Hello", 5, L"Hello", L"Hello"},
      {L"Hello", 6, L"Hello", L"Hello"},
      {L"Hello", kHighest, L"Hello", L"Hello"},
      {L"Hello", -1, L"Hello", L"Hello"},
      {L"Hello", kLowest, L"Hello", L"Hello"},
      {L"", 0, L"", L""},
      {L"", 3, L"", L""},
      {L"", -1, L"", L""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.n);
    EXPECT_EQ(StrLeft(row.s, row.n), row.left);
    EXPECT_EQ(StrRight(row.s, row.n), row.right);
    const B s(row.s);
    EXPECT_EQ(taken(VB_StrLeft(s, row.n)), row.left);
    EXPECT_EQ(taken(VB_StrRight(s, row.n)), row.right);
    EXPECT_EQ(s.text(), narrowed(row.s));
  }
}

TEST(Substrings, ZeroUnitsOfWideTextCount) {
  const std::wstring s(L"a\0b\0c", 5);
  EXPECT_EQ(StrLeft(s, 4), s.substr(0, 4));
  EXPECT_EQ(StrRight(s, 4), s.substr(1));
  EXPECT_EQ(StrConcat(s, L"", s, L"", L"", L"x"), s + s + L"x");
}

TEST(Substrings, ConcatKeepsTheOrder) {
  EXPECT_EQ(StrConcat(L"a", L"bc", L"", L"def", L"g", L"h"), L"abcdefgh");
  EXPECT_EQ(StrConcat({}, {}, {}, {}, {}, {}), L"");
  const B a(u"1"), b(u"22"), c(u"333"), d(u"4444"), e(u"55555"), f(u"666666");
  EXPECT_EQ(taken(VB_StrConcat(a, b, c, d, e, f)), L"122333444455555666666");
  EXPECT_EQ(taken(VB_StrConcat(a, b, nullptr, nullptr, nullptr, nullptr)), L"122");
}

}  // namespace
