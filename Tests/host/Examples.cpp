// The examples of the chief header and of the README, taken from their texts when the tests are
// built.
#include "support/Expectations.h"

TEST(Examples, OfTheHeader) {
  int32_t i, j;
  double x, xSecond, y;
#include "HeaderExamples.inc"
}

TEST(Examples, OfTheReadme) {
#include "ReadmeCalls.inc"
  EXPECT_EQ(phrase, L"Linear model");
  EXPECT_EQ(list, u"a, b, c");
}
