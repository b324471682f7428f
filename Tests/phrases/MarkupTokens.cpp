#include "support/SmallScopes.h"

TEST(QUVARDHTMLProcessor, OfEveryShortText) {
  EXPECT_SAME(QUVARDHTMLProcessor, stepwise::QUVARDHTMLProcessor, textsUpTo(6, L"<>BRQMC"));
}
