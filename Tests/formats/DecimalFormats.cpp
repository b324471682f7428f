#include "support/Doubles.h"
#include "support/HostStrings.h"

TEST(DecimalFormats, NoDecimals) {
  EXPECT_EQ(DecimalFormat(kLowest) + DecimalFormat(-1) + DecimalFormat(0), L"000");
}

TEST(DecimalFormats, ByDigitsIntoAnArray) {
  for (const auto& [digits, digitsOverride, pattern] :
       {row(4, -1, L"0.000"), row(2, -1, L"0.0"), row(1, -1, L"0"), row(0, -1, L"0"),
        row(-5, -1, L"0"), row(kLowest, -1, L"0"), row(4, 2, L"0.0"), row(4, 1, L"0"),
        row(4, 0, L"0"), row(4, -2, L"0"), row(4, kLowest, L"0"), row(-1, 3, L"0.00")}) {
    for (const std::int32_t count : {kLowest, -1, 0, 1, 2, 3}) {
      Text wide[] = {L"stays", L"stays", L"stays", L"stays"};
      SetFormat(wide, count, digits, digitsOverride);
      BSTR host[4] = {};
      VB_SetFormat(host, count, digits, digitsOverride);
      for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(wide[i], i < count ? pattern : L"stays");
        EXPECT_EQ(taken(host[i]), i < count ? pattern : L"(null handle)");
      }
    }
  }
}
