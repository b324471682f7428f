#include <clocale>
#include <cstdlib>

#include "TestPaths.h"
#include "support/Expectations.h"

TEST(StrLCase, InTheLocaleCChangesOnlyAToZ) {
  Text lower = allUnits();
  for (wchar_t& unit : lower) unit += unit >= L'A' && unit <= L'Z' ? 32 : 0;
  EXPECT_GIVES(StrLCase, lower, allUnits());
}

TEST(StrLCase, LeavesCodeUnitsThatAreNoCharacters) {
  for (const Text text : {L"\x10FFFF", L"\x110000", L"\x7FFFFFFF", L"\x80000000", L"\xFFFFFFFF"}) {
    EXPECT_GIVES(StrLCase, text, text);
    EXPECT_GIVES(LowerFirst, text, text, L"", 0);
    EXPECT_GIVES(UpperFirst, text, text);
  }
}

namespace {

// Builds a locale from the C library's sources and sets it. Returns whether both succeeded.
bool setLocale(const char* name) {
  setenv("LOCPATH", QUVARD_LOCALES, 1);
  setenv("NAME", name, 1);
  const int status = std::system(
      "[ -e \"$LOCPATH/$NAME\" ] || { mkdir -p \"$LOCPATH\" &&"
      "  localedef -i \"${NAME%.UTF-8}\" -f UTF-8 \"$LOCPATH/$NAME\"; } 2>/dev/null");
  return status == 0 && std::setlocale(LC_CTYPE, name) != nullptr;
}

}  // namespace

TEST(StrLCase, UsesTheLocaleOfTheProcess) {
  // The lower case of I, the upper case of i and the lower case of L with stroke in each locale.
  for (const auto& [name, i, I, stroke] :
       {row("C", L"i"s, L"I"s, L"\x141"s), row("C.UTF-8", L"i"s, L"I"s, L"\x142"s),
        row("tr_TR.UTF-8", L"\x131"s, L"\x130"s, L"\x142"s)}) {
    SCOPED_TRACE(name);
    if (name != "C"s && !setLocale(name)) {
      GTEST_SKIP() << "cannot build the locale " << name << ": install Debian's package locales";
    }
    EXPECT_GIVES(StrLCase, L"a" + i + stroke + L"\x10FFFF", L"AI\x141\x10FFFF");
    EXPECT_GIVES(LowerFirst, i + L"I", L"II", L"US", 0);
    EXPECT_GIVES(VB_LowerFirst, i + L"I", L"II", L"US", 0);
    EXPECT_GIVES(UpperFirst, I + L"i", L"ii");
    EXPECT_GIVES(VB_UpperFirst, I + L"i", L"ii");
    EXPECT_GIVES(LocalAN, I + L" " + i, L"i", L"I", L"US", -1, 0, 0);
    EXPECT_GIVES(LocalAN, i + L" i", L"i", L"I", L"ES", 0, -1, 0);
    EXPECT_GIVES(VB_LocalAN, I + L" " + i, L"i", L"I", L"US");
  }
  std::setlocale(LC_CTYPE, "C");
}
