// Numerics, given the same variable for two results too.
#include <array>

#include "../Benchmarks/Transcriptions.h"
#include "fuzz/Checks.h"

namespace {

// The status of a call and what it leaves in its variables, two of which may be one.
testing::AssertionResult checkOutcome(Random& random, const std::string& call, auto routine,
                                      auto steps) {
  announce([&] { return call; });
  using Outcome = std::array<double, 4>;
  const Outcome before{drawDouble(random), drawDouble(random), drawDouble(random), 0.0};
  const std::size_t i = random.below(3), j = random.below(3), k = random.below(3);
  const auto outcome = [&](auto called) {
    Outcome v = before;
    v[3] = called(&v[i], &v[j], &v[k]);
    return v;
  };
  const Outcome actual = outcome(routine), expected = outcome(steps);
  if (std::equal(actual.begin(), actual.end(), expected.begin(),
                 [](double x, double y) { return same(x, y); })) {
    return testing::AssertionSuccess();
  }
  const auto show = [](const char* what, const Outcome& v) {
    return showCall(what, v[0], v[1], v[2], v[3]);
  };
  return testing::AssertionFailure()
         << call << showCall(" with these of the variables ", i, j, k)
         << show(", which are ", before) << show("\n  gives    ", actual)
         << show("\n  expected ", expected);
}

}  // namespace

testing::AssertionResult checkNumeric(Random& random) {
  std::size_t choice = random.below(32);
  const double a = drawDouble(random), b = drawDouble(random), c = drawDouble(random);
  const int32_t m = drawInteger(random), n = drawInteger(random);
  const HostBool flag1 = drawFlag(random), flag2 = drawFlag(random);
  const double near = transcribed::TruncLng(b) + random.between(-2, 90);
  const double whole = static_cast<double>(random.below(1030));
  CHECK(transcribed, sqr, a);
  CHECK(transcribed, expm1x, a);
  CHECK(transcribed, ASin, a);
  CHECK(transcribed, LogExpAPlusExpB, a, b);
  CHECK(transcribed, GammaLn, a);
  CHECK(transcribed, ModDbl, a, b);
  CHECK(transcribed, IsLongP, a, b);
  CHECK(transcribed, IsLong, a);
  CHECK(transcribed, IsEven, a);
  CHECK(transcribed, IsEvenLng, n);
  CHECK(transcribed, Int05, a, flag1);
  CHECK(transcribed, Int05c, a, flag1);
  CHECK(transcribed, Int05LU, a, flag1, flag2);
  CHECK(transcribed, LCDDbl, a, b);
  CHECK(transcribed, Fact, n);
  CHECK(transcribed, Cnk, a, b);
  CHECK(transcribed, Cnk, whole, std::fabs(n));
  CHECK_GIVES(SumCnk, transcribed::sumOf(Cnk, a, b, near), a, b, near);
  CHECK(transcribed, Mod, m, n);
  CHECK(transcribed, LCD, m, n);
  CHECK(transcribed, LCD2, a, b);
  CHECK_GIVES(Min, a < b ? a : b, a, b);
  CHECK_GIVES(Max, a > b ? a : b, a, b);
  CHECK_GIVES(FSgn, transcribed::signOf(a), a);
  CHECK_GIVES(FSign, b < 0.0 ? -std::fabs(a) : std::fabs(a), a, b);
  CHECK_GIVES(Log10, std::log10(a), a);
  CHECK_GIVES(spow, std::pow(a, b), a, b);
  const double y1 = drawDouble(random), y2 = drawDouble(random), y3 = drawDouble(random);
  const auto linear = [&](auto routine) {
    return [=](double* x, double*, double* y) { return routine(a, b, y1, y2, x, y, flag1); };
  };
  const auto quadratic = [&](auto routine) {
    return [=](double* x, double* second, double* y) {
      return routine(a, b, c, y1, y2, y3, x, second, y, flag1);
    };
  };
  return choice == 0 ? checkOutcome(random, showCall("LinearInterpol", a, b, y1, y2, flag1),
                                    linear(LinearInterpol), linear(transcribed::LinearInterpol))
                     : checkOutcome(
                           random, showCall("QuadraticInterpol", a, b, c, y1, y2, y3, flag1),
                           quadratic(QuadraticInterpol), quadratic(transcribed::QuadraticInterpol));
}
