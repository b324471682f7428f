#include "support/SmallScopes.h"

TEST(MarkupTokens, OfEveryShortText) {
  EXPECT_SAME(QUVARDHTMLProcessor, stepwise::QUVARDHTMLProcessor, textsUpTo(6, L"<>BRQMC"));
}
