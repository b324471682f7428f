#include "support/SmallScopes.h"

TEST(Trims, OfEveryShortText) {
  const auto texts = textsUpTo(5, L" a\t\n\xA0\0"s);
  EXPECT_SAME(StrLTrim, stepwise::StrLTrim, texts);
  EXPECT_SAME(StrRTrim, stepwise::StrRTrim, texts);
  EXPECT_SAME(StrLRTrim, stepwise::StrLRTrim, texts);
}

// Many blanks are passed over in stretches, which begin and end anywhere.
TEST(Trims, OfManyBlanks) {
  for (std::size_t before = 0; before < 200; ++before) {
    for (const std::size_t after : {0U, 1U, 63U, 64U, 65U, 128U}) {
      const Text left(before, L' '), right(after, L' ');
      ASSERT_GIVES(StrLTrim, L"a b" + right, left + L"a b" + right);
      ASSERT_GIVES(StrRTrim, right + L"a b", right + L"a b" + left);
      ASSERT_GIVES(StrLRTrim, L"", left + right);
    }
  }
}
