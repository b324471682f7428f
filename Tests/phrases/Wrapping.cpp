#include "support/HostStrings.h"

TEST(Wrapping, NothingIsTrimmedOrTested) {
  for (const Text text : {L"", L" (a) ", L"[a word of some length]", L"\xD83D\xDE00"}) {
    EXPECT_EQ(SpStrSp(text) + PStrP(text), L" " + text + L" (" + text + L")");
    EXPECT_EQ(taken(VB_BStrB(B(text))), L"[" + text + L"]");
  }
  EXPECT_EQ(SpStrSp(L"\0"s) + PStrP(L"\0"s), L" \0 (\0)"s);
}
