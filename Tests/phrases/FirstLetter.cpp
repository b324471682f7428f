#include "support/HostStrings.h"

TEST(FirstLetter, ByLanguage) {
  for (const Text language : {L"US", L"ES", L"FR", L"IT", L"PT", L"PL", L"CS", L"CN", L"DE", L"JP",
                              L"de", L"jp", L"DEU", L"XX", L""}) {
    for (const HostBool force : {0, -1, 1, 0x10000}) {
      const bool kept = language == L"JP" || (language == L"DE" && (force & 0xFFFF) == 0);
      EXPECT_EQ(LowerFirst(L"MODEL", language, force), kept ? L"MODEL" : L"mODEL") << force;
    }
  }
}

TEST(FirstLetter, LowerAndUpper) {
  for (const auto& [text, lower, upper] :
       {row(L"lin", L"lin", L"Lin"), row(L"M", L"m", L"M"), row(L"", L"", L""),
        row(L" Ab", L" Ab", L" Ab"), row(L"\x142x", L"\x142x", L"\x142x")}) {
    EXPECT_EQ(LowerFirst(text, L"US", 0), lower);
    EXPECT_EQ(UpperFirst(text), upper);
  }
}
