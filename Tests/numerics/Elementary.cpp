#include <cstring>

#include "numerics/Constants.h"
#include "numerics/TruncLng.h"
#include "support/Expectations.h"

namespace {

TEST(Elementary, OneArgument) {
  expectRows("sqr", sqr, {0.0, 0.0}, {-0.0, -0.0}, {4.0, 2.0}, {2.0, 1.4142135623730951},
             {-kTiny, -kExtreme}, {-kInf, -kExtreme}, {kNaN, kNaN});
  expectRows("Log10", Log10, {1000.0, 3.0}, {2.0, 0.3010299956639812}, {0.0, -kInf});
  expectRows("expm1x", expm1x, {1.0, 1.718281828459045}, {709.0, 8.218407461554972e+307},
             {above(709.0), kExtreme}, {kInf, kExtreme}, {2e-06, 2.000002000013268e-06},
             {1e-06, 1.0000004999999999e-06}, {above(1e-06), 1.0000004999621837e-06}, {-0.0, 0.0},
             {-1e-06, -9.999995e-07}, {below(-1e-06), -9.999994999843054e-07},
             {-1.0, -0.6321205588285577}, {kNaN, kNaN});
  expectRows("ASin", ASin, {0.0, 0.0}, {-0.0, 0.0}, {0.5, 0.5235987755982989},
             {-0.25, -0.25268025514207865}, {1.0, 1.570796326794895}, {-1.0, -1.570796326794895},
             {0.9999999999999999, 1.5707963118937354},
             {1.0000000000000002, -5.562684646268023e-309}, {-2.0, 1.1125369292536046e-308},
             {1e300, -5.562684646268022e-09}, {1e308, -0.5076431096530029},
             {kInf, -1.5707963267948966}, {kNaN, kNaN});
  expectRows("FSgn", FSgn, {0.0, 0.0}, {-0.0, 0.0}, {kTiny, 1.0}, {-kTiny, -1.0}, {-kInf, kNaN});
  expectRows("Pi", Pi, {3.14159265358979});
}

TEST(Elementary, TwoArguments) {
  expectRows("spow", spow, {2.0, 10.0, 1024.0}, {10.0, -1.0, 0.1}, {-8.0, 1.0 / 3.0, kNaN},
             {0.0, -1.0, kInf});
  expectRows("Min", Min, {1, 2, 1}, {2, 1, 1}, {kNaN, 1, 1}, {1, kNaN, kNaN}, {0.0, -0.0, -0.0});
  expectRows("Max", Max, {1, 2, 2}, {2, 1, 2}, {kNaN, 1, 1}, {1, kNaN, kNaN}, {0.0, -0.0, -0.0});
  expectRows("FSign", FSign, {3, -1, -3}, {-3, -1, -3}, {3, 1, 3}, {-3, 1, 3}, {3, -0.0, 3},
             {-3, kNaN, 3}, {3, -kTiny, -3}, {0.0, -1, -0.0}, {-0.0, 1, 0.0});
  expectRows("LogExpAPlusExpB", LogExpAPlusExpB, {0, 0, 0.6931471805599453},
             {1, 2, 2.313261687518223}, {-800, -801, -799.6867383124818},
             {0, -30, 9.348077867343381e-14}, {-0.0, -100, 0.0}, {5, -kInf, 5}, {-kInf, kInf, kInf},
             {kInf, kInf, kNaN}, {kNaN, 1, kNaN});
}

TEST(Elementary, ConstantsHaveTheirBits) {
  const uint64_t lanczos[] = {0x3E8645E569E1DBC8, 0x3EE4D5C75C187EE3, 0xBFC1BCB213BB7E41,
                              0x402903C27E40123E, 0xC06613AE519C9497, 0x40881A9661D3740D,
                              0xC093AC8E8ED41526, 0x40852429B6C30AF7};
  EXPECT_EQ(std::memcmp(lanczos, quvard::kLanczos, sizeof lanczos), 0);
}

TEST(Elementary, TruncLng) {
  expectRows("TruncLng", quvard::TruncLng, {2.9, 2}, {-2.9, -2}, {-0.5, 0},
             {below(0x1p31), kHighest}, {-2147483647.75, -kHighest},
             {below(-2147483648.0), kLowest});
  for (const double x : {0x1p31, 0x1p32, -2147483649.0, 1e300, -1e300, kInf, -kInf, kNaN}) {
    EXPECT_GIVES(quvard::TruncLng, kLowest, x);
  }
}

}  // namespace
