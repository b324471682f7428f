#include "support/Expectations.h"

TEST(Boundary, EveryUnitPassesUnchanged) {
  EXPECT_GIVES(convToWstring, allUnits(), allUnits());
  EXPECT_GIVES(VB_StrLeft, allUnits(), allUnits(), -1);
}

TEST(Boundary, TextEndsAtItsFirstZeroUnit) {
  char16_t units[] = u"ab\0cd";
  EXPECT_EQ(convToWstring(units), L"ab");
  EXPECT_EQ(convToWstring(nullptr), L"");
  EXPECT_EQ(take(VB_StrConcat(units, units, nullptr, nullptr, nullptr, nullptr)), L"abab");
}
