#include <gtest/gtest.h>

#include <vector>

#include "support/HostStrings.h"
#include "support/RandomTexts.h"

namespace {

TEST(Search, CommonChar) {
  struct Row {
    std::wstring text, chars;
    HostBool expected;
  };
  const std::vector<Row> rows{
      {L"abc", L"xyzb", -1},
      {L"abc", L"xyz", 0},
      {L"abc", L"B", 0},
      {L"a b", L" x", -1},
      {L"", L"a", 0},
      {L"a", L"", 0},
      {L"", L"", 0},
      {L"xyzw", L"w", -1},
      {L"abc", L"012345678", 0},
      {L"abc8", L"012345678", -1},
      {L"0", L"012345678", -1},
      {L"", L"012345678", 0},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(CommonChar(row.text, row.chars), row.expected);
    EXPECT_EQ(CommonChar(row.chars, row.text), row.expected);
    EXPECT_EQ(VB_CommonChar(B(row.text), B(row.chars)), row.expected);
  }
  EXPECT_EQ(VB_CommonChar(nullptr, B(u"a")), 0);
  EXPECT_EQ(VB_CommonChar(B(u"a"), nullptr), 0);
}

TEST(Search, CommonCharOfAnyUnits) {
  // Units that agree in their low 16 bits, zero and negative units, among few and among many.
  const std::vector<std::uint32_t> units{0, 'a', 0x10061, 0xFFFF, 0x1FFFF, 0x80000061, 0xFFFFFFFF};
  for (const std::uint32_t one : units) {
    for (const std::uint32_t other : units) {
      for (const std::size_t more : {0U, 20U}) {
        std::wstring chars(more, L'z');
        for (std::size_t i = 0; i < more; ++i) chars += static_cast<wchar_t>(0x20000 + i);
        chars += static_cast<wchar_t>(other);
        EXPECT_EQ(CommonChar(std::wstring(2, static_cast<wchar_t>(one)), chars),
                  one == other ? -1 : 0)
            << one << ' ' << other << ' ' << more;
      }
    }
  }
}

TEST(Search, Count) {
  struct Row {
    std::wstring text, pattern;
    std::int32_t expected;
  };
  const std::wstring twenty = L"abcdefghijklmnopqrst";
  const std::vector<Row> rows{
      {L"a,b,c", L",", 2},
      {L"abcabc", L"abc", 2},
      {L"abcabcx", L"abc", 2},
      {L"abc", L"abc", 1},
      {L"abc", L"abcd", 0},
      {L"aaa", L"aa", 1},
      {L"aaaa", L"aa", 2},
      {L"ababa", L"aba", 1},
      {L"Aa", L"a", 1},
      {L"abc", L"", 0},
      {L"", L"a", 0},
      {L"", L"", 0},
      {L",,,", L",", 3},
      {twenty + twenty, twenty, 2},
      {twenty + L"a" + twenty.substr(0, 19), twenty, 1},
      {std::wstring(100, L'a'), std::wstring(17, L'a'), 5},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(cChrCount(row.text, row.pattern), row.expected);
    EXPECT_EQ(ChrCount(B(row.text), B(row.pattern)), row.expected);
  }
  EXPECT_EQ(ChrCount(nullptr, B(u"a")), 0);
  EXPECT_EQ(ChrCount(B(u"a"), nullptr), 0);
  // Both end at their first zero unit.
  EXPECT_EQ(cChrCount(std::wstring(L"aa\0a", 4), L"a"), 2);
  EXPECT_EQ(cChrCount(L"abab", std::wstring(L"ab\0c", 4)), 2);
  EXPECT_EQ(cChrCount(L"ab", std::wstring(L"\0a", 2)), 0);
}

TEST(Search, CountLikeASearchOnRandomTexts) {
  RandomTexts random;
  for (int i = 0; i < 20000; ++i) {
    const std::wstring text = random.next(L"ab", 60);
    const std::wstring pattern = random.next(L"ab", i % 3 == 0 ? 20 : 4) + L"a";
    std::int32_t count = 0;
    for (std::size_t at = 0; (at = text.find(pattern, at)) != text.npos; at += pattern.size()) {
      ++count;
    }
    ASSERT_EQ(cChrCount(text, pattern), count) << ::testing::PrintToString(text);
  }
}

}  // namespace
