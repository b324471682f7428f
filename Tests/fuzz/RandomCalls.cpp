// The checks of the fuzz targets on random calls, the same in every run.
#include "fuzz/Checks.h"

namespace {

void expectAll(testing::AssertionResult (*check)(Random&)) {
  Random random;
  for (int i = 0; i < 50000; ++i) ASSERT_TRUE(check(random)) << "in call " << i;
}

}  // namespace

TEST(RandomCalls, HostRoutines) { expectAll(checkHostRoutine); }
TEST(RandomCalls, WideRoutines) { expectAll(checkWideRoutine); }
TEST(RandomCalls, Formats) { expectAll(checkFormat); }
TEST(RandomCalls, Numerics) { expectAll(checkNumeric); }
