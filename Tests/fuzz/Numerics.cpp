// The numerics that have a reference. The others have their bits alone.
#include "fuzz/Checks.h"
#include "support/NumericReferences.h"

namespace {

struct Arguments {
  double a, b;
  int32_t m, n;
  double near, integral;
};
#define ARGUMENTS a, b, m, n, near, integral

Arguments drawArguments(Random& random) {
  const double b = drawDouble(random);
  return {drawDouble(random),
          b,
          drawInteger(random),
          drawInteger(random),
          stepwise::toInt32(b) + random.between(-2, 90),
          static_cast<double>(random.below(1030))};
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
                             CHECK(LCDDbl, a, b)};
  return checks;
}
