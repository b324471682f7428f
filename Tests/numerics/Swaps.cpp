#include <array>

#include "support/Expectations.h"

namespace {

// Swaps two of four values that stand side by side. These bytes change, and no others.
template <typename Value>
void expectSwap(void (*swap)(Value*, Value*), Value a, Value b) {
  std::array values{b, a, b, a};
  const std::array expected{b, b, a, a};
  swap(&values[1], &values[2]);
  swap(&values[1], &values[1]);
  using Bytes = std::array<unsigned char, sizeof values>;
  EXPECT_EQ(std::bit_cast<Bytes>(values), std::bit_cast<Bytes>(expected));
}

}  // namespace

TEST(Swaps, Integers) { expectSwap(SwapLng, kLowest, 7); }

// A signalling NaN with a payload keeps its bits: nothing is computed.
TEST(Swaps, Doubles) { expectSwap(SwapDbl, -0.0, std::bit_cast<double>(0xFFF4000000001234)); }

TEST(Swaps, Strings) { expectSwap(SwapStr, BSTR{}, BSTR(B(u"text"))); }
