#include <cmath>

#include "QUVARDBS1C.h"
#include "support/Doubles.h"

namespace {

TEST(HalfUnits, SideBySide) {
  // The flags: half set or clear, lower True or not.
  struct Row {
    double v, away, awayWhole, closest, closestWhole, down, up, downWhole, upWhole;
  };
  const double big = 3000000000.5;
  const std::vector<Row> rows{
      {2.0, 2.0, 2.0, 2.0, 2.0, 2.0, 2.0, 2.0, 2.0},
      {2.1, 2.5, 3.0, 2.0, 2.0, 2.0, 2.5, 2.0, 3.0},
      {2.25, 2.5, 3.0, 2.0, 2.0, 2.0, 2.5, 2.0, 3.0},
      {2.4, 2.5, 3.0, 2.5, 2.0, 2.0, 2.5, 2.0, 3.0},
      {2.5, 3.0, 3.0, 2.5, 2.0, 2.5, 2.5, 2.0, 3.0},
      {2.6, 3.0, 3.0, 2.5, 3.0, 2.5, 3.0, 2.0, 3.0},
      {2.75, 3.0, 3.0, 3.0, 3.0, 2.5, 3.0, 2.0, 3.0},
      {2.9, 3.0, 3.0, 3.0, 3.0, 2.5, 3.0, 2.0, 3.0},
      {-2.1, -2.5, -3.0, -2.0, -2.0, -2.5, -2.0, -3.0, -2.0},
      {-2.5, -3.0, -3.0, -2.5, -2.0, -2.5, -2.5, -3.0, -2.0},
      {-2.6, -3.0, -3.0, -2.5, -3.0, -3.0, -2.5, -3.0, -2.0},
      {0.3, 0.5, 1.0, 0.5, 0.0, 0.0, 0.5, 0.0, 1.0},
      {-0.3, -0.5, -1.0, -0.5, -0.0, -0.5, 0.0, -1.0, 0.0},
      {0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0},
      {-0.0, 0.0, 0.0, 0.0, 0.0, -0.0, -0.0, -0.0, -0.0},
      {-3.0, -3.0, -3.0, -3.0, -3.0, -3.0, -3.0, -3.0, -3.0},
      {2.4999999999995, 3.0, 3.0, 2.5, 2.0, 2.0, 2.5, 2.0, 3.0},
      {2.4999999999985, 2.5, 3.0, 2.5, 2.0, 2.0, 2.5, 2.0, 3.0},
      {2.2500000000009, 2.5, 3.0, 2.0, 2.0, 2.0, 2.5, 2.0, 3.0},
      {2.250000000001, 2.5, 3.0, 2.5, 2.0, 2.0, 2.5, 2.0, 3.0},
      {2.7499999999991, 3.0, 3.0, 3.0, 3.0, 2.5, 3.0, 2.0, 3.0},
      {2.749999999999, 3.0, 3.0, 2.5, 3.0, 2.5, 3.0, 2.0, 3.0},
      {15.5, 16.0, 16.0, 15.5, 15.0, 15.5, 15.5, 15.0, 16.0},
      {16.5, 17.0, 17.0, 16.5, 17.0, 16.5, 16.5, 16.0, 17.0},
      {2.5000000000000004, 3.0, 3.0, 2.5, 2.0, 2.5, 3.0, 2.0, 3.0},
      {2.500000000000001, 3.0, 3.0, 2.5, 3.0, 2.5, 3.0, 2.0, 3.0},
      {0.99999999999999989, 1.5, 2.0, 1.0, 1.0, 0.5, 2.0, 0.0, 2.0},
      {-1e-20, -0.5, -1.0, -0.0, -0.0, -0.5, 1.0, -1.0, 1.0},
      {2147483646.25, 2147483646.5, 2147483647.0, 2147483646.0, 2147483646.0, 2147483646.0,
       2147483646.5, 2147483646.0, 2147483647.0},
      {2147483647.25, 2147483648.0, 2147483648.0, 2147483647.0, 2147483647.0, 2147483647.0,
       2147483647.5, 2147483647.0, 2147483648.0},
      {big, big + 0.5, big + 0.5, big, big + 0.5, big, big, big - 0.5, big + 0.5},
      {1e300, 1e300, 1e300, 1e300, 1e300, 1e300, 1e300, 1e300, 1e300},
      {kInf, kNaN, kNaN, kNaN, kNaN, kInf, kInf, kInf, kInf},
      {-kInf, kNaN, kNaN, kNaN, kNaN, -kInf, -kInf, -kInf, -kInf},
      {kNaN, kNaN, kNaN, kNaN, kNaN, kNaN, kNaN, kNaN, kNaN},
  };
  for (const Row& row : rows) {
    const double v = row.v;
    EXPECT_TRUE(sameBits(Int05(v, -1), row.away)) << v;
    EXPECT_TRUE(sameBits(Int05(v, 0), row.awayWhole)) << v;
    EXPECT_TRUE(sameBits(Int05c(v, -1), row.closest)) << v;
    EXPECT_TRUE(sameBits(Int05c(v, 0), row.closestWhole)) << v;
    EXPECT_TRUE(sameBits(Int05LU(v, -1, -1), row.down)) << v;
    EXPECT_TRUE(sameBits(Int05LU(v, -1, 0), row.up)) << v;
    EXPECT_TRUE(sameBits(Int05LU(v, 0, -1), row.downWhole)) << v;
    EXPECT_TRUE(sameBits(Int05LU(v, 0, 0), row.upWhole)) << v;
  }
}

TEST(HalfUnits, EveryFlag) {
  for (int32_t low = 0; low <= 0xFFFF; ++low) {
    const bool set = low != 0;
    const bool isTrue = low == 0xFFFF;
    for (const uint32_t noise : {0x00000000U, 0x00010000U, 0x80000000U, 0xFFFF0000U}) {
      const auto flag = static_cast<HostBool>(static_cast<uint32_t>(low) | noise);
      ASSERT_EQ(Int05(2.1, flag), set ? 2.5 : 3.0) << flag;
      ASSERT_EQ(Int05c(2.4, flag), set ? 2.5 : 2.0) << flag;
      ASSERT_EQ(Int05LU(2.3, flag, 0), set ? 2.5 : 3.0) << flag;
      ASSERT_EQ(Int05LU(2.7, flag, -1), set ? 2.5 : 2.0) << flag;
      ASSERT_EQ(Int05LU(2.3, -1, flag), isTrue ? 2.0 : 2.5) << flag;
      ASSERT_EQ(Int05LU(2.3, 0, flag), isTrue ? 2.0 : 3.0) << flag;
    }
  }
}

}  // namespace
