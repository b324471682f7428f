#include "support/SmallScopes.h"

TEST(LocalAN, InEveryLanguageWithEveryFlag) {
  const std::vector<Text> words{L"", L"ad", L"No", L"XX", L"\0a"s};
  const std::vector<Text> languages{L"ES",  L"FR",  L"IT", L"PT", L"PL",    L"US",   L"DE",
                                    L"JP",  L"CS",  L"CN", L"us", L"Us",    L"uS",   L"U",
                                    L"USA", L" US", L"EN", L"",   L"US\0"s, L"\0\0"s};
  const std::vector<HostBool> flags{0, -1};
  EXPECT_SAME(LocalAN, reference::LocalAN, words, words, languages, flags, flags, flags);
}
