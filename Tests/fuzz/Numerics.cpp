// The numeric routines that have a reference.
#include "fuzz/Checks.h"
#include "support/NumericReferences.h"

namespace {

// Either argument may be integral, and k may be close to 0 or to n.
std::tuple<double, double> drawCoefficient(Random& random) {
  if (random.below(4) == 0) return {random.edge(), random.edge()};
  constexpr double kLimits[] = {140.0, 1200.0, 2500.0, 4e9};
  double n = random.between(-20.0, kLimits[random.below(4)]);
  double k = random.between(-20.0, random.below(2) == 0 ? 40.0 : n);
  if (random.below(2) == 0) n = std::floor(n);
  if (random.below(2) == 0) k = std::floor(k);
  return {n, random.below(3) == 0 ? n - k : k};
}

// Near the values of k where one kind of term ends and the next begins.
std::tuple<double, double, double> drawSum(Random& random) {
  double n = random.between(-60.0, 60.0);
  if (random.below(2) == 0) n = std::floor(n);
  const double from = random.between(-80.0, 80.0);
  switch (random.below(6)) {
    case 0:
      return {n < 0.0 ? n : n + 0x1p31, from, from + 50.0};
    case 1:
      return {n, -0x1p31 + std::fabs(from), -0x1p31 + 78.0 + n};
    case 2:
      return {n - 0x1p31 + 48.0, kLowest, n - 0x1p31 + 58.0};
    case 3:
      return {random.edge(), from, from + 40.0};
    case 4:
      return {n, from - 1e3, from};
    default:
      return {n, from, from + random.between(-2.0, 90.0)};
  }
}

// The terms are those of Cnk, which has its own check.
double sumOfTerms(double n, double from, double to) { return reference::sumOf(Cnk, n, from, to); }

std::tuple<int32_t, int32_t> drawIntegers(Random& random) {
  return {drawInteger(random), drawInteger(random)};
}
std::tuple<double, double> drawDoubles(Random& random) { return {random.edge(), random.edge()}; }

// `draw` returns a tuple of arguments.
Check checkOf(const char* name, auto routine, auto reference, auto draw) {
  const auto compare = [=](auto... numbers) {
    return returns(name, routine, reference(numbers...), numbers...);
  };
  return {name, [=](Random& random) { return std::apply(compare, draw(random)); }};
}

}  // namespace

const Checks& checksOfNumerics() {
  static const Checks checks{checkOf("Cnk", Cnk, reference::Cnk, drawCoefficient),
                             checkOf("SumCnk", SumCnk, sumOfTerms, drawSum),
                             checkOf("Mod", Mod, reference::Mod, drawIntegers),
                             checkOf("LCD", LCD, reference::LCD, drawIntegers),
                             checkOf("LCD2", LCD2, reference::LCD2, drawDoubles)};
  return checks;
}
