#include <gtest/gtest.h>

#include <string>

#include "support/HostStrings.h"

namespace {

TEST(Wrapping, NothingIsTrimmedOrTested) {
  const std::wstring high(L"\xD83D\xDE00", 2);
  for (const std::wstring& text : {std::wstring(), std::wstring(L"a"), std::wstring(L" (a) "),
                                   std::wstring(L"[a word of some length]"), high}) {
    EXPECT_EQ(SpStrSp(text), L" " + text + L" ");
    EXPECT_EQ(PStrP(text), L"(" + text + L")");
    EXPECT_EQ(taken(VB_SpStrSp(B(text))), L" " + text + L" ");
    EXPECT_EQ(taken(VB_PStrP(B(text))), L"(" + text + L")");
    EXPECT_EQ(taken(VB_BStrB(B(text))), L"[" + text + L"]");
  }
  EXPECT_EQ(taken(VB_SpStrSp(nullptr)), L"  ");
  EXPECT_EQ(SpStrSp(std::wstring(1, L'\0')), std::wstring(L" \0 ", 3));
}

}  // namespace
