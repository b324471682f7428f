#include "support/Expectations.h"

TEST(Wrapping, NothingIsTrimmedOrTested) {
  for (const Text text : {L"", L" (a) ", L"[a word of some length]", L"\xD83D\xDE00"}) {
    EXPECT_GIVES(SpStrSp, L" " + text + L" ", text);
    EXPECT_GIVES(PStrP, L"(" + text + L")", text);
    EXPECT_GIVES(VB_BStrB, L"[" + text + L"]", text);
  }
  EXPECT_GIVES(SpStrSp, L" \0 "s, L"\0"s);
  EXPECT_GIVES(PStrP, L"(\0)"s, L"\0"s);
}
