// Every 16-bit unit through each way in and out of the boundary.
#include <gtest/gtest.h>

#include "support/HostStrings.h"

namespace {

TEST(Boundary, EveryUnitPassesUnchanged) {
  for (std::uint32_t value = 1; value <= 0xFFFF; ++value) {
    // The unit stands last, first and alone, beside another that would pair with a surrogate.
    const auto unit = static_cast<char16_t>(value);
    for (const std::u16string& text :
         {std::u16string{unit}, std::u16string{0xD83D, unit}, std::u16string{unit, 0xDE00}}) {
      const B host(text);
      ASSERT_EQ(convToWstring(host), widened(text)) << value;
      ASSERT_EQ(taken(VB_StrLeft(host, -1)), widened(text)) << value;
      ASSERT_EQ(host.text(), text) << value;
    }
  }
}

TEST(Boundary, TextEndsAtItsFirstZeroUnit) {
  char16_t units[] = u"ab\0cd";
  EXPECT_EQ(convToWstring(units), L"ab");
  EXPECT_EQ(taken(VB_StrLeft(units, 4)), L"ab");
  EXPECT_EQ(taken(VB_StrConcat(units, units, nullptr, nullptr, nullptr, nullptr)), L"abab");
}

TEST(Boundary, NullReadsAsEmptyAndGivesANewString) {
  EXPECT_EQ(convToWstring(nullptr), L"");
  const BSTR first = VB_StrLeft(nullptr, 3);
  const BSTR second = VB_StrRight(nullptr, 3);
  EXPECT_NE(first, second);
  EXPECT_EQ(taken(first), L"");
  EXPECT_EQ(taken(second), L"");
}

}  // namespace
