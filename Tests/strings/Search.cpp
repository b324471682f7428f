#include "support/Random.h"
#include "support/SmallScopes.h"
#include "support/Stepwise.h"

TEST(Search, CommonCharOfEveryShortText) {
  // Units that agree in their low 16 bits, a negative one among them; alone, among more than a few
  // others and among many.
  const auto texts = textsUpTo(3, L"\x61\x10061\x80000061\xFFFF"s + L'\0');
  const std::vector<Text> others{L"", L"fcedghij\x20002\x20000\x20001", Text(70, L'c')};
  forEach(
      [](const Text& more, const Text& few, const Text& text) {
        const Text chars = few + more;
        const HostBool common = stepwise::CommonChar(text, chars);
        EXPECT_GIVES(CommonChar, common, text, chars);
        EXPECT_GIVES(CommonChar, common, chars, text);
      },
      others, texts, texts);
}

TEST(Search, CountInEveryShortText) {
  forEach(
      [](const Text& pattern, const Text& text) {
        EXPECT_GIVES(cChrCount, stepwise::cChrCount(text, pattern), text, pattern);
      },
      textsUpTo(5), textsUpTo(9));
}

TEST(Search, CountInLongerTexts) {
  Random random;
  for (int i = 0; i < 4000; ++i) {
    const Text pattern = random.text(L"ab", 20);
    const Text text = random.text(L"ab", 60) + pattern + L"a" + pattern + random.text(L"ab", 60);
    ASSERT_GIVES(cChrCount, stepwise::cChrCount(text, pattern), text, pattern);
  }
  EXPECT_GIVES(cChrCount, 0x18001, Text(0x18001, L'a'), L"a");
}

TEST(Search, CountEndsAtZeroUnits) {
  EXPECT_GIVES(cChrCount, 2, L"aa\0a"s, L"a");
  EXPECT_GIVES(cChrCount, 2, L"abab", L"ab\0c"s);
  EXPECT_GIVES(cChrCount, 0, L"ab", L"\0a"s);
}
