#include "support/SmallScopes.h"

TEST(CommonChar, OfEveryShortText) {
  // Code units with equal low bits, one of them negative: alone, among a few others and among many.
  const auto texts = textsUpTo(3, L"\x61\x10061\x80000061\xFFFF"s + L'\0');
  std::vector<Text> sets;
  for (const Text& more : {L""s, L"fcedghij\x20002\x20000\x20001"s, Text(70, L'c')}) {
    for (const Text& few : texts) sets.push_back(few + more);
  }
  EXPECT_SAME(CommonChar, reference::CommonChar, texts, sets);
  EXPECT_SAME(CommonChar, reference::CommonChar, sets, texts);
}

TEST(cChrCount, InEveryShortText) {
  EXPECT_SAME(cChrCount, reference::cChrCount, textsUpTo(9), textsUpTo(5));
}

TEST(cChrCount, Above32767) { EXPECT_GIVES(cChrCount, 0x18001, Text(0x18001, L'a'), L"a"); }

TEST(cChrCount, OfTextsUpToAZeroCodeUnit) {
  EXPECT_GIVES(cChrCount, 2, L"aa\0a"s, L"a");
  EXPECT_GIVES(cChrCount, 2, L"abab", L"ab\0c"s);
  EXPECT_GIVES(cChrCount, 0, L"ab", L"\0a"s);
}
