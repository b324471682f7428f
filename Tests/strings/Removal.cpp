#include "support/SmallScopes.h"

TEST(RemoveChar, OfEveryShortText) {
  EXPECT_SAME(RemoveChar, reference::RemoveChar, textsUpTo(11), textsUpTo(6));
}

// Longer than kShortPattern. Each removal completes a further occurrence.
TEST(RemoveChar, OfPeriodicChars) {
  for (const Text& period : textsUpTo(4)) {
    if (period.empty()) continue;
    Text chars;
    while (chars.size() < 19) chars += period;
    const Texts pieces{chars, chars.substr(1), chars.substr(0, 9), chars.substr(9), L"a", L"b"};
    Texts texts{L""};
    for (std::size_t i = 0; texts.size() < 1500; ++i) {
      for (const Text& piece : pieces) texts.push_back(texts[i] + piece);
    }
    EXPECT_SAME(RemoveChar, reference::RemoveChar, texts, Texts{chars, chars + L'b'});
  }
}

TEST(RemoveChar, IsLinear) {
  const Text a(300000, L'a'), b(300000, L'b');
  EXPECT_GIVES(RemoveChar, b, a + b, L"ab");
  EXPECT_GIVES(RemoveChar, L"a", a, L"aa");
  EXPECT_GIVES(RemoveChar, a, a, Text(100, L'a') + L'b');
  EXPECT_GIVES(RemoveChar, Text(99, L'a'), a, Text(100, L'a'));
  EXPECT_GIVES(RemoveChar, Text(149999, L'a'), a, Text(150000, L'a'));
  // Each removal completes an occurrence to its left.
  Text pairs;
  for (int i = 0; i < 2500000; ++i) pairs += L"ab";
  EXPECT_GIVES(RemoveChar, Text(2500001, L'b'), pairs + L'b', L"abb");
  EXPECT_GIVES(RemoveChar, Text(2500000, L'b'), pairs, L"ab");
  Text blocks;
  for (int i = 0; i < 300; ++i) blocks += b[0] + a.substr(0, 999);
  EXPECT_GIVES(RemoveChar, a.substr(0, 300 * 999) + a, blocks + a, b[0] + a.substr(0, 150000));
}

TEST(RemoveColon, OfEveryShortText) {
  EXPECT_SAME(RemoveColon, reference::RemoveColon, textsUpTo(6, L" :;a"s + L'\0'));
  EXPECT_SAME(VB_RemoveColon, reference::VB_RemoveColon, textsUpTo(6, L" :;a"));
}

TEST(RemoveSemicolon, OfEveryShortText) {
  EXPECT_SAME(RemoveSemicolon, reference::RemoveSemicolon, textsUpTo(6, L" :;a"s + L'\0'));
}

TEST(RemoveNonNumericChar, OfAllUnits) {
  EXPECT_GIVES(RemoveNonNumericChar, L"30123456789", L"3\0"s + allUnits());
}
