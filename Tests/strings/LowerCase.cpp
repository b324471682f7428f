#include <clocale>

#include "support/HostStrings.h"

TEST(LowerCase, DefaultLocaleChangesAToZAlone) {
  Text lower = allUnits();
  for (wchar_t& unit : lower) unit += unit >= L'A' && unit <= L'Z' ? 32 : 0;
  EXPECT_EQ(StrLCase(allUnits()), lower);
}

TEST(LowerCase, ValuesThatAreNoCharacterStay) {
  for (const Text text : {L"\x10FFFF", L"\x110000", L"\x7FFFFFFF", L"\x80000000", L"\xFFFFFFFF"}) {
    EXPECT_EQ(StrLCase(text), text);
    EXPECT_EQ(LowerFirst(text, L"", 0) + UpperFirst(text), text + text);
  }
}

TEST(LowerCase, FollowsTheLocaleOfTheProcess) {
  // Of these, macOS has the second alone.
  if (std::setlocale(LC_CTYPE, "C.UTF-8") == nullptr &&
      std::setlocale(LC_CTYPE, "en_US.UTF-8") == nullptr) {
    GTEST_SKIP() << "no UTF-8 locale here";
  }
  const Text lowered = StrLCase(L"\x0141\x00C9\x10FFFF"), upper = UpperFirst(L"\x0142");
  std::setlocale(LC_CTYPE, "C");
  EXPECT_EQ(lowered + upper, L"\x0142\x00E9\x10FFFF\x0141");
}
