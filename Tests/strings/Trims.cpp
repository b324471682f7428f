#include "support/HostStrings.h"

TEST(Trims, AllThree) {
  for (const auto& [s, left, right, both] :
       {row(L"  a b  ", L"a b  ", L"  a b", L"a b"), row(L"a", L"a", L"a", L"a"),
        row(L"   ", L"", L"", L""), row(L"", L"", L"", L""), row(L"\ta ", L"\ta ", L"\ta", L"\ta"),
        row(L" a\n", L"a\n", L" a\n", L"a\n"), row(L"!a\xA0", L"!a\xA0", L"!a\xA0", L"!a\xA0")}) {
    EXPECT_EQ(StrLTrim(s), left);
    EXPECT_EQ(StrRTrim(s), right);
    EXPECT_EQ(StrLRTrim(s), both);
  }
}
