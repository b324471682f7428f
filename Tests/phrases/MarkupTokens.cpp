#include "support/SmallScopes.h"

TEST(QUVARDHTMLProcessor, OfEveryShortText) {
  EXPECT_SAME(QUVARDHTMLProcessor, reference::QUVARDHTMLProcessor, textsUpTo(6, L"<>BRQMC"));
}
