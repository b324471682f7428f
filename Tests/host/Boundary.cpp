#include "support/HostStrings.h"

TEST(Boundary, EveryUnitPassesUnchanged) {
  const B all(allUnits());
  EXPECT_EQ(convToWstring(all), allUnits());
  EXPECT_EQ(taken(VB_StrLeft(all, -1)), allUnits());
}

TEST(Boundary, TextEndsAtItsFirstZeroUnit) {
  char16_t units[] = u"ab\0cd";
  EXPECT_EQ(convToWstring(units), L"ab");
  EXPECT_EQ(convToWstring(nullptr), L"");
  EXPECT_EQ(taken(VB_StrConcat(units, units, nullptr, nullptr, nullptr, nullptr)), L"abab");
}
