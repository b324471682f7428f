#include "support/Expectations.h"

namespace {

double yOfLinearInterpol(HostBool forward) {
  double x = 2, y = 2;
  LinearInterpol(1, 3, 2, 6, &x, &y, forward);
  return y;
}

double yOfQuadraticInterpol(HostBool forward) {
  double x = 5, xSecond = 0, y = 6;
  QuadraticInterpol(1, 2, 4, 0, 0, 6, &x, &xSecond, &y, forward);
  return y;
}

}  // namespace

// Every value of the low 16 bits, which alone count, with others above them.
TEST(Flags, ReadTheirLow16Bits) {
  for (int32_t low = 0; low <= 0xFFFF && !HasFailure(); ++low) {
    for (const HostBool flag : {low, low | 0x10000, low - 0x10000}) {
      const bool set = low != 0, isTrue = low == 0xFFFF;
      EXPECT_GIVES(LocalAN, set ? L"A B" : L"a B", L"a", L"B", L"DE", flag, 0, 0);
      EXPECT_GIVES(LocalAN, set ? L"b a" : L"B a", L"a", L"B", L"FR", 0, flag, 0);
      EXPECT_GIVES(LocalAN, set ? L"aB" : L"a B", L"a", L"B", L"CN", 0, 0, flag);
      EXPECT_GIVES(LowerFirst, set ? L"a" : L"A", L"A", L"DE", flag);
      EXPECT_GIVES(OptimalFormat, set ? L"0.0E-0" : L"0.0", 3e-5, 1, flag, -1);
      EXPECT_GIVES(OptimalFormat, set ? L"0.0E-0" : L"0E-0", 1e-5, 1, -1, flag);
      EXPECT_GIVES(Int05, set ? 2.5 : 3.0, 2.1, flag);
      EXPECT_GIVES(Int05c, set ? 2.5 : 2.0, 2.4, flag);
      EXPECT_GIVES(Int05LU, set ? 2.5 : 3.0, 2.3, flag, 0);
      EXPECT_GIVES(Int05LU, set ? 2.5 : 2.0, 2.7, flag, -1);
      EXPECT_GIVES(Int05LU, isTrue ? 2.0 : 3.0, 2.3, 0, flag);
      EXPECT_GIVES(yOfLinearInterpol, isTrue ? 4 : 2, flag);
      EXPECT_GIVES(yOfQuadraticInterpol, isTrue ? 12 : 6, flag);
    }
  }
}
