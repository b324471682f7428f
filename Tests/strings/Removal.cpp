#include "support/SmallScopes.h"

TEST(Removal, CharOfEveryShortText) {
  EXPECT_SAME(RemoveChar, stepwise::RemoveChar, textsUpTo(11), textsUpTo(6));
}

TEST(Removal, CharIsOnePass) {
  const Text a(300000, L'a'), b(300000, L'b');
  EXPECT_GIVES(RemoveChar, b, a + b, L"ab");
  EXPECT_GIVES(RemoveChar, L"a", a, L"aa");
  EXPECT_GIVES(RemoveChar, a, a, Text(100, L'a') + L'b');
  EXPECT_GIVES(RemoveChar, Text(99, L'a'), a, Text(100, L'a'));
  EXPECT_GIVES(RemoveChar, Text(149999, L'a'), a, Text(150000, L'a'));
  // Each removal completes an occurrence further to the left.
  Text pairs;
  for (int i = 0; i < 1500000; ++i) pairs += L"ab";
  EXPECT_GIVES(RemoveChar, Text(1500001, L'b'), pairs + L'b', L"abb");
  Text blocks;
  for (int i = 0; i < 300; ++i) blocks += b[0] + a.substr(0, 999);
  EXPECT_GIVES(RemoveChar, a.substr(0, 300 * 999) + a, blocks + a, b[0] + a.substr(0, 150000));
}

TEST(Removal, ColonsAndSemicolons) {
  EXPECT_SAME(RemoveColon, stepwise::RemoveColon, textsUpTo(6, L" :;a"s + L'\0'));
  EXPECT_SAME(RemoveSemicolon, stepwise::RemoveSemicolon, textsUpTo(6, L" :;a"s + L'\0'));
  EXPECT_SAME(VB_RemoveColon, stepwise::VB_RemoveColon, textsUpTo(6, L" :;a"));
  EXPECT_GIVES(VB_RemoveColon, kNullHandle, nullptr);
}

TEST(Removal, NonDigits) {
  EXPECT_GIVES(RemoveNonNumericChar, L"30123456789", L"3\0"s + allUnits());
}
