#include "support/SmallScopes.h"

TEST(Trims, OfEveryShortText) {
  for (const Text& s : textsUpTo(5, L" a\t\n\xA0\0"s)) {
    Text left = s;
    while (left.starts_with(L' ')) left.erase(0, 1);
    Text right = s, both = left;
    for (Text* const text : {&right, &both}) {
      while (text->ends_with(L' ')) text->pop_back();
    }
    ASSERT_GIVES(StrLTrim, left, s);
    ASSERT_GIVES(StrRTrim, right, s);
    ASSERT_GIVES(StrLRTrim, both, s);
  }
}
