#include "support/Expectations.h"

TEST(Joins, KeepTheOrder) {
  EXPECT_GIVES(StrConcat, L"\0abc\0gh"s, L"\0a"s, L"bc", L"", L"\0"s, L"g", L"h");
  EXPECT_GIVES(VB_StrConcat, L"122333444455555666666", L"1", L"22", L"333", L"4444", L"55555",
               L"666666");
}
