#include <cmath>

#include "QUVARDBS1C.h"
#include "support/Doubles.h"

namespace {

// The steps one by one.
double stepwise(double x) {
  if (x == 1.0) return 0.0;
  if (-6.5 > x) return -kExtreme;
  double d = 7.0 + x, s = 0.0;
  const auto add = [&](double a) {
    s = s + a / d;
    d = d + -1.0;
  };
  add(1.659470187408462e-07);
  add(9.934937113930748e-06);
  add(-0.1385710331296526);
  add(12.50734324009056);
  add(-176.6150291498386);
  add(771.3234287757674);
  add(-1259.139216722289);
  add(676.5203681218835);
  s = s + 0.9999999999995183;
  const double u = (std::log(s) + 0.9189385332046727) - (6.5 + x);
  return std::log(6.5 + x) * (x + -0.5) + u;
}

TEST(Gamma, GammaLn) {
  struct Row {
    double x, expected;
  };
  const std::vector<Row> rows{
      {1.0, 0.0},
      {2.0, -1.3322676295501878e-15},
      {3.0, 0.69314718055994451},
      {0.5, 0.57236494292470042},
      {5.0, 3.1780538303479444},
      {10.0, 12.801827480081471},
      {100.0, 359.13420536957523},
      {-1.5, 0.860047015376534},
      {-5.5, -4.517848037884107},
      {-6.25, -4.051627349164635},
      {1e-15, 34.65735902799727},
      {4.4e-16, kInf},
      {-4.4e-16, kInf},
      {0.0, kInf},
      {-2.0, kInf},
      {-4.0, kInf},
      {-6.0, kInf},
      {-6.5, kInf},
      {below(-6.5), -kExtreme},
      {-kInf, -kExtreme},
      {-0.5, kNaN},
      {-2.5, kNaN},
      {-4.5, kNaN},
      {-6.1, kNaN},
      {1e+300, 6.897755278982137e+302},
      {2.57e305, kInf},
      {kInf, kNaN},
      {kNaN, kNaN},
  };
  for (const auto& [x, expected] : rows) EXPECT_TRUE(sameBits(GammaLn(x), expected)) << x;

  Arguments arguments;
  for (int i = 0; i < 20000; ++i) {
    for (const double x : {arguments.between(-7.0, 10.0), arguments.between(0.0, 300.0),
                           arguments.any(), arguments.edge()}) {
      ASSERT_TRUE(sameBits(GammaLn(x), stepwise(x))) << x;
    }
  }
}

}  // namespace
