#include <clocale>

#include "support/Expectations.h"

TEST(LowerCase, DefaultLocaleChangesAToZAlone) {
  Text lower = allUnits();
  for (wchar_t& unit : lower) unit += unit >= L'A' && unit <= L'Z' ? 32 : 0;
  EXPECT_GIVES(StrLCase, lower, allUnits());
}

TEST(LowerCase, ValuesThatAreNoCharacterStay) {
  for (const Text text : {L"\x10FFFF", L"\x110000", L"\x7FFFFFFF", L"\x80000000", L"\xFFFFFFFF"}) {
    EXPECT_GIVES(StrLCase, text, text);
    EXPECT_GIVES(LowerFirst, text, text, L"", 0);
    EXPECT_GIVES(UpperFirst, text, text);
  }
}

TEST(LowerCase, FollowsTheLocaleOfTheProcess) {
  // Of these, macOS has the second alone.
  if (std::setlocale(LC_CTYPE, "C.UTF-8") == nullptr &&
      std::setlocale(LC_CTYPE, "en_US.UTF-8") == nullptr) {
    GTEST_SKIP() << "no UTF-8 locale here";
  }
  EXPECT_GIVES(StrLCase, L"\x0142\x00E9\x10FFFF", L"\x0141\x00C9\x10FFFF");
  EXPECT_GIVES(UpperFirst, L"\x0141", L"\x0142");
  std::setlocale(LC_CTYPE, "C");
}
