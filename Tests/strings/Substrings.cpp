#include "support/Doubles.h"
#include "support/HostStrings.h"

TEST(Substrings, LeftAndRight) {
  for (const auto& [s, n, left, right] :
       {row(L"Hello", 0, L"", L""), row(L"Hello", 1, L"H", L"o"), row(L"", 3, L"", L""),
        row(L"Hello", 4, L"Hell", L"ello"), row(L"Hello", 5, L"Hello", L"Hello"),
        row(L"Hello", 6, L"Hello", L"Hello"), row(L"Hello", kHighest, L"Hello", L"Hello"),
        row(L"Hello", -1, L"Hello", L"Hello"), row(L"Hello", kLowest, L"Hello", L"Hello")}) {
    EXPECT_EQ(StrLeft(s, n), left) << n;
    EXPECT_EQ(StrRight(s, n), right) << n;
  }
  EXPECT_EQ(StrLeft(L"a\0b\0c"s, 4) + StrRight(L"a\0b\0c"s, 4), L"a\0b\0\0b\0c"s);
}
