#include "support/HostStrings.h"

TEST(Joins, KeepTheOrder) {
  EXPECT_EQ(StrConcat(L"\0a"s, L"bc", L"", L"\0"s, L"g", L"h"), L"\0abc\0gh"s);
  const B a(u"1"), b(u"22"), c(u"333"), d(u"4444"), e(u"55555"), f(u"666666");
  EXPECT_EQ(taken(VB_StrConcat(a, b, c, d, e, f)), L"122333444455555666666");
}
