#include "support/SmallScopes.h"

TEST(Trims, OfEveryShortText) {
  const auto texts = textsUpTo(5, L" a\t\n\xA0\0"s);
  EXPECT_SAME(StrLTrim, reference::StrLTrim, texts);
  EXPECT_SAME(StrRTrim, reference::StrRTrim, texts);
  EXPECT_SAME(StrLRTrim, reference::StrLRTrim, texts);
}

// Code units are compared in blocks. The blanks begin and end at each position of a block.
TEST(Trims, OfManyBlanks) {
  for (std::size_t around = 0; around < 200; ++around) {
    for (const std::size_t within : {0U, 1U, 63U, 64U, 65U, 128U}) {
      const Text blanks(around, L' '), words = L"a" + Text(within, L' ') + L"b";
      ASSERT_GIVES(StrLTrim, words + blanks, blanks + words + blanks);
      ASSERT_GIVES(StrRTrim, blanks + words, blanks + words + blanks);
    }
    ASSERT_GIVES(StrLRTrim, L"", Text(around, L' '));
  }
}
