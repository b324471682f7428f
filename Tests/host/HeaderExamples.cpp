// The examples of the chief header, taken from its text when the tests are built.
#include "support/Expectations.h"

TEST(HeaderExamples, Hold) {
  int32_t i, j;
  double x, xSecond, y;
#include "HeaderExamples.inc"
}
