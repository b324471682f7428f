#include "support/Expectations.h"

namespace {

TEST(Swaps, EachTakesTheOthersValue) {
  int32_t i = kLowest, j = 7;
  SwapLng(&i, &j);
  SwapLng(&i, &i);
  EXPECT_EQ(std::pair(i, j), std::pair(7, kLowest));

  // A signalling NaN with a payload keeps its bits: nothing is computed.
  const auto signalling = uint64_t{0xFFF4000000001234};
  double x = -0.0, y = std::bit_cast<double>(signalling);
  SwapDbl(&x, &y);
  SwapDbl(&x, &x);
  EXPECT_EQ(std::bit_cast<uint64_t>(x), signalling);
  EXPECT_TRUE(same(y, -0.0));

  char16_t text[] = u"text";
  BSTR s = text, null = nullptr;
  SwapStr(&s, &null);
  SwapStr(&null, &null);
  EXPECT_EQ(std::pair(s, null), std::pair(BSTR{}, BSTR{text}));
}

}  // namespace
