// The calls that the README shows, taken from its text when the tests are built.
#include <gtest/gtest.h>

#include "support/HostStrings.h"

TEST(Readme, CallsGiveWhatItSays) {
#include "ReadmeCalls.inc"
  EXPECT_EQ(phrase, L"Linear model");
  EXPECT_EQ(list, u"a, b, c");
}
