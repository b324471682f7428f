#include "QUVARDBS1C.h"
#include "support/Doubles.h"

namespace {

TEST(WholeNumbers, IsLong) {
  struct Row {
    double x, tol;
    HostBool expected;
  };
  const double usual = 1e-12;
  const std::vector<Row> rows{
      {3.0, usual, -1},
      {3.0000000000009, usual, -1},
      {3.0000000000011, usual, 0},
      {2.9999999999991, usual, -1},
      {2.9999999999989, usual, 0},
      {1e-12, usual, -1},
      {above(1e-12), usual, 0},
      {1.1e-12, usual, 0},
      {-1.1e-12, usual, 0},
      {0.5, usual, 0},
      {-3.0000000000011, usual, 0},
      {-2.9999999999991, usual, -1},
      {1e300, usual, -1},
      {kInf, usual, -1},
      {-kInf, usual, -1},
      {kNaN, usual, -1},
      {-0.0, usual, -1},
      {3.0, 0.0, -1},
      {above(3.0), 0.0, 0},
      {kTiny, 0.0, 0},
      {2.75, 0.25, -1},
      {2.75, below(0.25), 0},
      {2.25, 0.25, -1},
      {2.5, 0.5, -1},
      {2.5, below(0.5), 0},
      {3.0, -kTiny, 0},
      {kInf, -1.0, 0},
      {kNaN, -1.0, -1},
      {2.5, kNaN, -1},
  };
  for (const auto& [x, tol, expected] : rows) {
    EXPECT_EQ(IsLongP(x, tol), expected) << x << ", " << tol;
    EXPECT_EQ(IsLong(x), IsLongP(x, usual)) << x;
  }
}

TEST(WholeNumbers, IsEven) {
  struct Row {
    double x;
    HostBool expected;
  };
  const std::vector<Row> rows{
      {4.0, -1},    {0.0, -1},   {-0.0, -1},
      {-2.0, -1},   {1e300, -1}, {9007199254740992.0, -1},
      {3.0, 0},     {-3.0, 0},   {2.5, 0},
      {1e-16, -1},  {4e-16, -1}, {2.0000000000000004, 0},
      {4.5e-16, 0}, {-1e-16, 0}, {9007199254740991.0, 0},
      {kInf, 0},    {-kInf, 0},  {kNaN, 0},
      {0x1p-51, 0}, {0.5, 0},    {below(0x1p-51), -1},
  };
  for (const auto& [x, expected] : rows) EXPECT_EQ(IsEven(x), expected) << x;
  EXPECT_EQ(IsEvenLng(kLowest), -1);
  EXPECT_EQ(IsEvenLng(kHighest), 0);
  Arguments arguments;
  for (int i = 0; i < 10000; ++i) {
    const int32_t n = arguments.integer();
    ASSERT_EQ(IsEvenLng(n), IsEven(n)) << n;
  }
}

}  // namespace
