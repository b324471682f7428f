#include "support/Expectations.h"

TEST(FirstLetter, ByLanguage) {
  for (const Text language : {L"US", L"ES", L"FR", L"IT", L"PT", L"PL", L"CS", L"CN", L"DE", L"JP",
                              L"de", L"jp", L"DEU", L"XX", L""}) {
    for (const HostBool force : {0, -1}) {
      const bool kept = language == L"JP" || (language == L"DE" && force == 0);
      EXPECT_GIVES(LowerFirst, kept ? L"MODEL" : L"mODEL", L"MODEL", language, force);
    }
  }
}

TEST(FirstLetter, LowerAndUpper) {
  for (const auto& [text, lower, upper] :
       {row(L"lin", L"lin", L"Lin"), row(L"M", L"m", L"M"), row(L"", L"", L""),
        row(L" Ab", L" Ab", L" Ab"), row(L"\x142x", L"\x142x", L"\x142x")}) {
    EXPECT_GIVES(LowerFirst, lower, text, L"US", 0);
    EXPECT_GIVES(UpperFirst, upper, text);
  }
}
