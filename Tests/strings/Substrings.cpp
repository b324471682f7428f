#include "support/SmallScopes.h"
#include "support/Stepwise.h"

TEST(Substrings, OfEveryLength) {
  for (const Text s : {L"", L"a", L"ab", L"Hello"}) {
    for (const int32_t n : integersNear(9)) {
      const Text left = stepwise::StrLeft(s, n), right = stepwise::StrRight(s, n);
      EXPECT_GIVES(StrLeft, left, s, n);
      EXPECT_GIVES(StrRight, right, s, n);
      EXPECT_GIVES(VB_StrLeft, left, s, n);
      EXPECT_GIVES(VB_StrRight, right, s, n);
    }
  }
}
