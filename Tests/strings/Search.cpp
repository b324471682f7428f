#include "support/HostStrings.h"

TEST(Search, CommonCharLikeEachUnitWithEachOther) {
  // Units that agree in their low 16 bits, zero and negative units, among few and among many.
  const Text all = L"\0\x61\x10061\xFFFF\x10000\x1FFFF\x80000061\xFFFFFFFF"s, narrow = L"aAbB078 ";
  for (int i = 0; i < 20000; ++i) {
    const Text& units = i % 3 == 0 ? narrow : all;
    const Text text = randomText(units, 3), few = randomText(units, 3);
    const Text more = L"fcedghij\x20002\x20000\x20001";
    const Text chars = few + Text(i % 2 == 0 ? L"" : more) + Text(i % 5 == 0 ? 70 : 0, L'c') + few;
    const HostBool common = text.find_first_of(few) != text.npos ? -1 : 0;
    ASSERT_EQ(CommonChar(text, chars), common) << i;
    ASSERT_EQ(CommonChar(chars, text), common) << i;
  }
}

TEST(Search, CountLikeTheSteps) {
  for (int i = 0; i < 20000; ++i) {
    const Text pattern = randomText(L"ab", i % 3 == 0 ? 20 : 4);
    const Text text = randomText(L"ab", 60) + (i % 2 == 0 ? pattern + L"a" + pattern : L"");
    std::int32_t count = 0;
    for (std::size_t at = 0; !pattern.empty() && (at = text.find(pattern, at)) != text.npos;
         at += pattern.size()) {
      ++count;
    }
    ASSERT_EQ(cChrCount(text, pattern), count) << ::testing::PrintToString(row(text, pattern));
  }
}

TEST(Search, CountEndsAtZeroUnits) {
  EXPECT_EQ(cChrCount(L"aa\0a"s, L"a"), 2);
  EXPECT_EQ(cChrCount(L"abab", L"ab\0c"s), 2);
  EXPECT_EQ(cChrCount(L"ab", L"\0a"s), 0);
  EXPECT_EQ(cChrCount(Text(0x18001, L'a'), L"a"), 0x18001);
}
