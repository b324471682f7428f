// The numerics that have a reference, and the interpolations with one variable for two results. The
// others have their bits alone.
#include <array>

#include "fuzz/Checks.h"
#include "support/NumericReferences.h"

namespace {

// Calls an interpolation with three variables of which some may be the same one. Each then holds a
// result that separate variables hold after the call.
testing::AssertionResult checkAliases(Random& random, const std::string& name, auto interpolate) {
  using Variables = std::array<double, 3>;
  const Variables before{drawDouble(random), drawDouble(random), drawDouble(random)};
  const std::array<std::size_t, 3> at{random.below(3), random.below(3), random.below(3)};
  Variables separate{before[at[0]], before[at[1]], before[at[2]]}, actual = before;
  const int32_t expectedStatus = interpolate(&separate[0], &separate[1], &separate[2]);
  const int32_t status = interpolate(&actual[at[0]], &actual[at[1]], &actual[at[2]]);
  bool holds = status == expectedStatus;
  for (std::size_t variable = 0; variable < 3; ++variable) {
    bool isResult = std::count(at.begin(), at.end(), variable) == 0;
    for (std::size_t i = 0; i < 3; ++i) {
      isResult = isResult || (at[i] == variable && same(actual[variable], separate[i]));
    }
    holds = holds && isResult;
  }
  if (holds) return testing::AssertionSuccess();
  const auto show = [](int32_t result, const Variables& v) {
    return showCall(std::to_string(result), v[0], v[1], v[2]);
  };
  return testing::AssertionFailure()
         << showCall(name + " with these of three variables: ", at[0], at[1], at[2])
         << showCall(", which hold ", before[0], before[1], before[2]) << "\n  gives    "
         << show(status, actual) << "\n  with separate variables "
         << show(expectedStatus, separate);
}

struct Arguments {
  double a, b, c, y1, y2, y3;
  int32_t m, n;
  HostBool forward;
  double near, integral;
};
#define ARGUMENTS a, b, c, y1, y2, y3, m, n, forward, near, integral

Arguments drawArguments(Random& random) {
  const double b = drawDouble(random);
  return {drawDouble(random),
          b,
          drawDouble(random),
          drawDouble(random),
          drawDouble(random),
          drawDouble(random),
          drawInteger(random),
          drawInteger(random),
          drawFlag(random),
          stepwise::toInt32(b) + random.between(-2, 90),
          static_cast<double>(random.below(1030))};
}

testing::AssertionResult checkLinear(Random& random) {
  const Arguments v = drawArguments(random);
  return checkAliases(random, showCall("LinearInterpol", v.a, v.b, v.y1, v.y2, v.forward),
                      [&v](double* x, double*, double* y) {
                        return LinearInterpol(v.a, v.b, v.y1, v.y2, x, y, v.forward);
                      });
}

testing::AssertionResult checkQuadratic(Random& random) {
  const Arguments v = drawArguments(random);
  return checkAliases(
      random, showCall("QuadraticInterpol", v.a, v.b, v.c, v.y1, v.y2, v.y3, v.forward),
      [&v](double* x, double* second, double* y) {
        return QuadraticInterpol(v.a, v.b, v.c, v.y1, v.y2, v.y3, x, second, y, v.forward);
      });
}

}  // namespace

const Checks& checksOfNumerics() {
  static const Checks checks{CHECK(Fact, n),
                             CHECK(Cnk, a, b),
                             CHECK(Cnk, integral, std::fabs(n)),
                             CHECK_GIVES(SumCnk, stepwise::sumOf(Cnk, a, b, near), a, b, near),
                             CHECK(Mod, m, n),
                             CHECK(LCD, m, n),
                             CHECK(LCD2, a, b),
                             CHECK(LCDDbl, a, b),
                             {"LinearInterpol", checkLinear},
                             {"QuadraticInterpol", checkQuadratic}};
  return checks;
}
