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

TEST(Substrings, ConcatKeepsTheOrder) {
  EXPECT_EQ(StrConcat(L"\0a"s, L"bc", L"", L"\0"s, L"g", L"h"), L"\0abc\0gh"s);
  const B a(u"1"), b(u"22"), c(u"333"), d(u"4444"), e(u"55555"), f(u"666666");
  EXPECT_EQ(taken(VB_StrConcat(a, b, c, d, e, f)), L"122333444455555666666");
}
