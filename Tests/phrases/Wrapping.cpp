#include "support/SmallScopes.h"

TEST(Wrapping, NothingIsTrimmedOrTested) {
  const std::vector<Text> texts{L"", L" (a) ", L"[a word of some length]", L"\xD83D\xDE00", L"\0"s};
  EXPECT_SAME(SpStrSp, stepwise::SpStrSp, texts);
  EXPECT_SAME(PStrP, stepwise::PStrP, texts);
  EXPECT_GIVES(VB_BStrB, L"[[a]]", L"[a]");
}
