#include "support/SmallScopes.h"

TEST(FirstLetter, InEveryLanguage) {
  const std::vector<Text> texts{L"",  L"m", L"Z", L"MODEL", L" Ab",
                                L"@", L"[", L"`", L"{",     L"\x142x"};
  const std::vector<Text> languages{L"US", L"ES", L"FR", L"IT", L"PT",  L"PL", L"CS", L"CN",
                                    L"DE", L"JP", L"de", L"jp", L"DEU", L"XX", L""};
  EXPECT_SAME(LowerFirst, reference::LowerFirst, texts, languages, std::vector<HostBool>{0, -1});
  EXPECT_SAME(UpperFirst, reference::UpperFirst, texts);
}
