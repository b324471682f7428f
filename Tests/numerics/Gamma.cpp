#include "support/Expectations.h"
#include "support/Random.h"

namespace {

// The steps one by one.
double stepwise(double x) {
  if (x == 1.0) return 0.0;
  if (-6.5 > x) return -kExtreme;
  double d = 7.0 + x, s = 0.0;
  for (const double a :
       {1.659470187408462e-07, 9.934937113930748e-06, -0.1385710331296526, 12.50734324009056,
        -176.6150291498386, 771.3234287757674, -1259.139216722289, 676.5203681218835}) {
    s = s + a / d;
    d = d - 1.0;
  }
  s = s + 0.9999999999995183;
  return std::log(6.5 + x) * (x - 0.5) + ((std::log(s) + 0.9189385332046727) - (6.5 + x));
}

TEST(Gamma, GammaLn) {
  expectRows("GammaLn", GammaLn, {1.0, 0.0}, {2.0, -1.3322676295501878e-15},
             {3.0, 0.69314718055994451}, {0.5, 0.57236494292470042}, {100.0, 359.13420536957523},
             {-1.5, 0.860047015376534}, {-5.5, -4.517848037884107}, {1e-15, 34.65735902799727},
             {1e+300, 6.897755278982137e+302}, {-0.5, kNaN}, {-6.1, kNaN}, {kInf, kNaN},
             {0.0, kInf}, {-6.5, kInf}, {below(-6.5), -kExtreme});
  Random random;
  for (int i = 0; i < 20000 && !HasFailure(); ++i) {
    expectSame("GammaLn", GammaLn, stepwise, random.between(-7.0, 10.0));
    expectSame("GammaLn", GammaLn, stepwise, random.between(0.0, 300.0));
    expectSame("GammaLn", GammaLn, stepwise, random.edge());
  }
}

}  // namespace
