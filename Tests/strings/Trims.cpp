#include "support/SmallScopes.h"
#include "support/Stepwise.h"

TEST(Trims, OfEveryShortText) {
  for (const Text& s : textsUpTo(5, L" a\t\n\xA0\0"s)) {
    ASSERT_GIVES(StrLTrim, stepwise::StrLTrim(s), s);
    ASSERT_GIVES(StrRTrim, stepwise::StrRTrim(s), s);
    ASSERT_GIVES(StrLRTrim, stepwise::StrLRTrim(s), s);
  }
}
