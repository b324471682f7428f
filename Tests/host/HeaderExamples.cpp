// The examples of the chief header, taken from its text when the tests are built.
#include <gtest/gtest.h>

#include "support/HostStrings.h"

TEST(HeaderExamples, Hold) {
  int32_t i, j;
  double x, xSecond, y;
#include "HeaderExamples.inc"
}
