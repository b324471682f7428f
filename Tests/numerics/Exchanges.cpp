#include "QUVARDBS1C.h"
#include "support/Doubles.h"

namespace {

TEST(Exchanges, EachTakesTheOthersValue) {
  int32_t i = kLowest, j = 7;
  SwapLng(&i, &j);
  EXPECT_EQ(i, 7);
  EXPECT_EQ(j, kLowest);
  SwapLng(&i, &i);
  EXPECT_EQ(i, 7);

  // A signalling NaN with a payload keeps its bits: nothing is computed.
  const auto signalling = uint64_t{0xFFF4000000001234};
  double x = -0.0, y = std::bit_cast<double>(signalling);
  SwapDbl(&x, &y);
  EXPECT_EQ(std::bit_cast<uint64_t>(x), signalling);
  EXPECT_TRUE(sameBits(y, -0.0));
  SwapDbl(&x, &x);
  EXPECT_EQ(std::bit_cast<uint64_t>(x), signalling);

  char16_t text[] = u"text";
  BSTR s = text, null = nullptr;
  SwapStr(&s, &null);
  EXPECT_EQ(s, nullptr);
  EXPECT_EQ(null, text);
  SwapStr(&null, &null);
  EXPECT_EQ(null, text);
}

}  // namespace
