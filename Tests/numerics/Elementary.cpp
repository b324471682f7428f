#include <cmath>

#include "QUVARDBS1C.h"
#include "numerics/Constants.h"
#include "numerics/TruncLng.h"
#include "support/Doubles.h"

namespace {

TEST(Elementary, OneArgument) {
  struct Row {
    const char* name;
    double (*function)(double);
    double x, expected;
  };
  const std::vector<Row> rows{
      {"sqr", sqr, 0.0, 0.0},
      {"sqr", sqr, -0.0, -0.0},
      {"sqr", sqr, 4.0, 2.0},
      {"sqr", sqr, 2.0, 1.4142135623730951},
      {"sqr", sqr, -1e-300, -kExtreme},
      {"sqr", sqr, -kTiny, -kExtreme},
      {"sqr", sqr, -kInf, -kExtreme},
      {"sqr", sqr, kInf, kInf},
      {"sqr", sqr, kNaN, kNaN},
      {"Log10", Log10, 1000.0, 3.0},
      {"Log10", Log10, 2.0, 0.3010299956639812},
      {"Log10", Log10, 0.0, -kInf},
      {"Log10", Log10, -1.0, kNaN},
      {"expm1x", expm1x, 1.0, 1.718281828459045},
      {"expm1x", expm1x, 709.0, 8.218407461554972e+307},
      {"expm1x", expm1x, above(709.0), kExtreme},
      {"expm1x", expm1x, 709.5, kExtreme},
      {"expm1x", expm1x, kInf, kExtreme},
      {"expm1x", expm1x, 2e-06, 2.000002000013268e-06},
      {"expm1x", expm1x, 1e-06, 1.0000004999999999e-06},
      {"expm1x", expm1x, above(1e-06), 1.0000004999621837e-06},
      {"expm1x", expm1x, 0.0, 0.0},
      {"expm1x", expm1x, -0.0, 0.0},
      {"expm1x", expm1x, -1e-06, -9.999995e-07},
      {"expm1x", expm1x, below(-1e-06), -9.999994999843054e-07},
      {"expm1x", expm1x, -1.0, -0.6321205588285577},
      {"expm1x", expm1x, -708.5, -1.0},
      {"expm1x", expm1x, -kInf, -1.0},
      {"expm1x", expm1x, kNaN, kNaN},
      {"ASin", ASin, 0.0, 0.0},
      {"ASin", ASin, -0.0, 0.0},
      {"ASin", ASin, 0.5, 0.5235987755982989},
      {"ASin", ASin, -0.25, -0.25268025514207865},
      {"ASin", ASin, 1.0, 1.570796326794895},
      {"ASin", ASin, -1.0, -1.570796326794895},
      {"ASin", ASin, 0.9999999999999999, 1.5707963118937354},
      {"ASin", ASin, 1.0000000000000002, -5.562684646268023e-309},
      {"ASin", ASin, 2.0, -1.1125369292536046e-308},
      {"ASin", ASin, -2.0, 1.1125369292536046e-308},
      {"ASin", ASin, 1e300, -5.562684646268022e-09},
      {"ASin", ASin, kInf, -1.5707963267948966},
      {"ASin", ASin, kNaN, kNaN},
      {"FSgn", FSgn, 0.0, 0.0},
      {"FSgn", FSgn, -0.0, 0.0},
      {"FSgn", FSgn, kTiny, 1.0},
      {"FSgn", FSgn, -kTiny, -1.0},
      {"FSgn", FSgn, 3.0, 1.0},
      {"FSgn", FSgn, -kInf, kNaN},
      {"FSgn", FSgn, kNaN, kNaN},
  };
  for (const auto& [name, function, x, expected] : rows) {
    EXPECT_TRUE(sameBits(function(x), expected)) << name << " of " << x;
  }
  EXPECT_TRUE(sameBits(Pi(), 3.14159265358979));
  EXPECT_TRUE(sameBits(Pi(), 2.0 * ASin(1.0)));
}

TEST(Elementary, TwoArguments) {
  struct Row {
    const char* name;
    double (*function)(double, double);
    double a, b, expected;
  };
  const std::vector<Row> rows{
      {"spow", spow, 2.0, 10.0, 1024.0},
      {"spow", spow, 10.0, -1.0, 0.1},
      {"spow", spow, -8.0, 1.0 / 3.0, kNaN},
      {"spow", spow, 0.0, -1.0, kInf},
      {"Min", Min, 1.0, 2.0, 1.0},
      {"Min", Min, 2.0, 1.0, 1.0},
      {"Min", Min, kNaN, 1.0, 1.0},
      {"Min", Min, 1.0, kNaN, kNaN},
      {"Min", Min, 0.0, -0.0, -0.0},
      {"Min", Min, -0.0, 0.0, 0.0},
      {"Max", Max, 1.0, 2.0, 2.0},
      {"Max", Max, 2.0, 1.0, 2.0},
      {"Max", Max, kNaN, 1.0, 1.0},
      {"Max", Max, 1.0, kNaN, kNaN},
      {"Max", Max, 0.0, -0.0, -0.0},
      {"FSign", FSign, 3.0, -1.0, -3.0},
      {"FSign", FSign, -3.0, -1.0, -3.0},
      {"FSign", FSign, 3.0, 1.0, 3.0},
      {"FSign", FSign, -3.0, 1.0, 3.0},
      {"FSign", FSign, 3.0, -0.0, 3.0},
      {"FSign", FSign, -3.0, kNaN, 3.0},
      {"FSign", FSign, 3.0, -kTiny, -3.0},
      {"FSign", FSign, 0.0, -1.0, -0.0},
      {"FSign", FSign, -0.0, 1.0, 0.0},
      {"LogExpAPlusExpB", LogExpAPlusExpB, 0.0, 0.0, 0.6931471805599453},
      {"LogExpAPlusExpB", LogExpAPlusExpB, 1.0, 2.0, 2.313261687518223},
      {"LogExpAPlusExpB", LogExpAPlusExpB, 2.0, 1.0, 2.313261687518223},
      {"LogExpAPlusExpB", LogExpAPlusExpB, 1000.0, 1000.0, 1000.6931471805599},
      {"LogExpAPlusExpB", LogExpAPlusExpB, -1000.0, -1000.0, -999.3068528194401},
      {"LogExpAPlusExpB", LogExpAPlusExpB, 1000.0, 0.0, 1000.0},
      {"LogExpAPlusExpB", LogExpAPlusExpB, -800.0, -801.0, -799.6867383124818},
      {"LogExpAPlusExpB", LogExpAPlusExpB, 0.0, -30.0, 9.348077867343381e-14},
      {"LogExpAPlusExpB", LogExpAPlusExpB, -0.0, -100.0, 0.0},
      {"LogExpAPlusExpB", LogExpAPlusExpB, -kInf, 0.0, 0.0},
      {"LogExpAPlusExpB", LogExpAPlusExpB, 5.0, -kInf, 5.0},
      {"LogExpAPlusExpB", LogExpAPlusExpB, kInf, 0.0, kInf},
      {"LogExpAPlusExpB", LogExpAPlusExpB, -kInf, kInf, kInf},
      {"LogExpAPlusExpB", LogExpAPlusExpB, kInf, kInf, kNaN},
      {"LogExpAPlusExpB", LogExpAPlusExpB, -kInf, -kInf, kNaN},
      {"LogExpAPlusExpB", LogExpAPlusExpB, kNaN, 1.0, kNaN},
      {"LogExpAPlusExpB", LogExpAPlusExpB, 1.0, kNaN, kNaN},
  };
  for (const auto& [name, function, a, b, expected] : rows) {
    EXPECT_TRUE(sameBits(function(a, b), expected)) << name << " of " << a << ", " << b;
  }
}

TEST(Elementary, ConstantsHaveTheirBits) {
  struct Row {
    double value;
    uint64_t bits;
  };
  const std::vector<Row> rows{
      {quvard::ExtremeDbl, 0x7FEFFFFFFFFFFFE2},     {quvard::kWholeTolerance, 0x3D719799812DEA11},
      {quvard::kEvenTolerance, 0x3CB0000000000000}, {quvard::kPi, 0x400921FB54442D11},
      {quvard::kHalfPi, 0x3FF921FB54442D11},        {quvard::kExpLimit, 0x4086280000000000},
      {quvard::kSeriesLimit, 0x3EB0C6F7A0B5ED8D},   {quvard::kClosestOffset, 0x3FDFFFFFFFFFFFEE},
      {quvard::kLogSqrtTwoPi, 0x3FED67F1C864BEB4},  {quvard::kLanczosG, 0x401C000000000000},
      {quvard::kLanczosLast, 0x3FEFFFFFFFFFEF0D},   {quvard::kLanczos[0], 0x3E8645E569E1DBC8},
      {quvard::kLanczos[1], 0x3EE4D5C75C187EE3},    {quvard::kLanczos[2], 0xBFC1BCB213BB7E41},
      {quvard::kLanczos[3], 0x402903C27E40123E},    {quvard::kLanczos[4], 0xC06613AE519C9497},
      {quvard::kLanczos[5], 0x40881A9661D3740D},    {quvard::kLanczos[6], 0xC093AC8E8ED41526},
      {quvard::kLanczos[7], 0x40852429B6C30AF7},
  };
  EXPECT_EQ(std::size(quvard::kLanczos), 8U);
  for (const auto& [value, bits] : rows) EXPECT_EQ(std::bit_cast<uint64_t>(value), bits) << value;
}

TEST(Elementary, TruncLng) {
  struct Row {
    double x;
    int32_t expected;
  };
  const std::vector<Row> rows{
      {2.9, 2},
      {-2.9, -2},
      {-0.5, 0},
      {2147483647.25, kHighest},
      {kNaN, kLowest},
      {2147483648.0, kLowest},
      {-kInf, kLowest},
      {below(2147483648.0), kHighest},
      {kInf, kLowest},
      {-2147483647.75, -kHighest},
      {1e300, kLowest},
      {-2147483648.5, kLowest},
      {-1e300, kLowest},
      {-2147483649.0, kLowest},
      {4294967296.0, kLowest},
  };
  for (const auto& [x, expected] : rows) EXPECT_EQ(quvard::TruncLng(x), expected) << x;
}

}  // namespace
