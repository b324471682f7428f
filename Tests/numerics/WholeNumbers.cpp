#include "QUVARDBS1C.h"
#include "support/Doubles.h"

namespace {

TEST(WholeNumbers, IsLong) {
  struct Row {
    double tolerance;
    std::vector<double> whole, others;
  };
  const double usual = 1e-12;
  const std::vector<Row> rows{
      {usual,
       {3.0, 3.0000000000009, -2.9999999999991, usual, 1e300, kInf, -kInf, kNaN, -0.0},
       {3.0000000000011, -3.0000000000011, 2.9999999999989, above(usual), -1.1e-12, 0.5}},
      {0.0, {3.0, -0.0}, {above(3.0), kTiny}},
      {0.25, {2.75, 2.25}, {below(2.75)}},
      {below(0.25), {3.0}, {2.75, 2.25}},
      {0.5, {2.5, -2.5}, {}},
      {below(0.5), {}, {2.5, -2.5}},
      {-1.0, {kNaN}, {kInf, 3.0}},
      {kNaN, {2.5}, {}}};
  for (const auto& [tolerance, whole, others] : rows) {
    for (const double x : whole) EXPECT_EQ(IsLongP(x, tolerance), -1) << x << ", " << tolerance;
    for (const double x : others) EXPECT_EQ(IsLongP(x, tolerance), 0) << x << ", " << tolerance;
  }
  for (const double x : rows[0].whole) EXPECT_EQ(IsLong(x), -1) << x;
  for (const double x : rows[0].others) EXPECT_EQ(IsLong(x), 0) << x;
}

TEST(WholeNumbers, IsEven) {
  for (const double x : {4.0, -0.0, -2.0, 1e300, 0x1p53, 1e-16, 4e-16, below(0x1p-51)}) {
    EXPECT_EQ(IsEven(x), -1) << x;
  }
  for (const double x :
       {3.0, -3.0, 2.5, 0.5, above(2.0), 0x1p-51, -1e-16, 0x1p53 - 1, kInf, -kInf, kNaN}) {
    EXPECT_EQ(IsEven(x), 0) << x;
  }
  Arguments arguments;
  for (int i = 0; i < 10000; ++i) expectSame(IsEvenLng, IsEven, arguments.integer());
  expectRows("IsEvenLng", IsEvenLng, {kLowest, -1}, {kHighest, 0}, {0, -1}, {-1, 0});
}

}  // namespace
