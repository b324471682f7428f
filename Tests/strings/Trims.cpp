#include <gtest/gtest.h>

#include <vector>

#include "support/HostStrings.h"

namespace {

TEST(Trims, BothFormsOfAllThree) {
  struct Row {
    std::wstring s, left, right, both;
  };
  const std::vector<Row> rows{
      {L"  a b  ", L"a b  ", L"  a b", L"a b"},
      {L" a", L"a", L" a", L"a"},
      {L"a ", L"a ", L"a", L"a"},
      {L"a", L"a", L"a", L"a"},
      {L"   ", L"", L"", L""},
      {L" ", L"", L"", L""},
      {L"", L"", L"", L""},
      {L"\ta ", L"\ta ", L"\ta", L"\ta"},
      {L" a\n", L"a\n", L" a\n", L"a\n"},
      {L"\x00A0 a \x3000", L"\x00A0 a \x3000", L"\x00A0 a \x3000", L"\x00A0 a \x3000"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(StrLTrim(row.s), row.left);
    EXPECT_EQ(StrRTrim(row.s), row.right);
    EXPECT_EQ(StrLRTrim(row.s), row.both);
    const B s(row.s);
    EXPECT_EQ(taken(VB_StrLTrim(s)), row.left);
    EXPECT_EQ(taken(VB_StrRTrim(s)), row.right);
    EXPECT_EQ(taken(VB_StrLRTrim(s)), row.both);
  }
}

}  // namespace
