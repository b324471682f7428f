#include <array>

#include "support/Expectations.h"
#include "support/Random.h"

namespace {

using Points = std::array<double, 6>;   // x1, x2, x3, y1, y2, y3
using Outcome = std::array<double, 4>;  // status, x, xSecond, y: what a call leaves behind

// What xSecond holds before a call.
constexpr double kOld = 77.0;

Outcome linear(const Points& p, HostBool forward, double x, double y) {
  const int32_t status = LinearInterpol(p[0], p[1], p[3], p[4], &x, &y, forward);
  return {static_cast<double>(status), x, kOld, y};
}

Outcome quadratic(const Points& p, HostBool forward, double x, double y) {
  double second = kOld;
  const int32_t status =
      QuadraticInterpol(p[0], p[1], p[2], p[3], p[4], p[5], &x, &second, &y, forward);
  return {static_cast<double>(status), x, second, y};
}

Outcome stepwiseLinear(const Points& p, HostBool forward, double x, double y) {
  const auto [x1, x2, x3, y1, y2, y3] = p;
  if (x1 == x2) return {-1, x1, kOld, (y1 + y2) * 0.5};
  const double a = (y2 - y1) / (x2 - x1);
  const double b = (x2 * y1 - x1 * y2) / (x2 - x1);
  if ((forward & 0xFFFF) == 0xFFFF) return {0, x, kOld, b + a * x};
  if (a == 0.0) return {-1, x, kOld, y};
  return {0, (y - b) / a, kOld, y};
}

bool counts(double value) { return value != 0.0 && !std::isnan(value); }

Outcome stepwiseQuadratic(const Points& p, HostBool forward, double x, double y) {
  const double xs[] = {p[0], p[1], p[2], p[0], p[1]}, ys[] = {p[3], p[4], p[5], p[3], p[4]};
  if (xs[0] == xs[1] || xs[1] == xs[2] || xs[0] == xs[2]) return {-1, x, kOld, y};

  const auto d = [&](int i) {
    return (xs[i] + xs[i + 1]) * xs[i + 2] - (xs[i] + xs[i + 2]) * xs[i + 1];
  };
  int i = counts(d(0)) ? 0 : counts(d(1)) ? 1 : 2, j = i + 1, k = i + 2;
  const double kk = (1.0 / d(i)) / ((xs[j] - xs[i]) * (xs[k] - xs[i]));
  const double pp = ((xs[j] * xs[j]) * ys[i] - (xs[i] * xs[i]) * ys[j]) * ((xs[k] - xs[i]) * xs[k]);
  const double qq = ((xs[i] * xs[i]) * ys[k] - (xs[k] * xs[k]) * ys[i]) * ((xs[j] - xs[i]) * xs[j]);
  const double c = (qq + pp) * kk;

  i = counts(xs[0] * xs[1]) ? 0 : counts(xs[1] * xs[2]) ? 1 : 2, j = i + 1;
  const double ii = xs[i] * xs[i], jj = xs[j] * xs[j];
  const double b =
      ((jj * ys[i] + (ii - jj) * c) - ii * ys[j]) / ((xs[i] * xs[j]) * (xs[j] - xs[i]));

  i = xs[0] * xs[0] == 0.0 ? 1 : 0;
  const double a = ((ys[i] - xs[i] * b) - c) / (xs[i] * xs[i]);
  if ((forward & 0xFFFF) == 0xFFFF) return {0, x, kOld, c + (b + a * x) * x};
  if (a == 0.0 && b == 0.0) return {-1, x, kOld, y};
  if (a == 0.0) return {0, (y - c) / b, kOld, y};

  const double disc = (c - y) * (-4.0 * a) + b * b;
  const double s = 0.0 > disc ? -kExtreme : std::sqrt(disc);
  const double first = a > 0.0 ? -b - s : s - b, second = a > 0.0 ? s - b : -b - s;
  return {0, (first * 0.5) / a, (0.5 * second) / a, y};
}

// Expects what a call leaves behind, part by part.
void expectOutcome(bool isQuadratic, const Points& p, HostBool forward, double x, double y,
                   const Outcome& expected) {
  const Outcome actual = isQuadratic ? quadratic(p, forward, x, y) : linear(p, forward, x, y);
  constexpr std::array kParts{"status", "x", "xSecond", "y"};
  for (std::size_t i = 0; i < actual.size(); ++i) {
    const std::string name =
        kParts[i] + " of "s + (isQuadratic ? "Quadratic" : "Linear") + "Interpol";
    const auto part = [&](auto...) { return actual[i]; };
    EXPECT_PRED_FORMAT1(resultItself, gives(name.c_str(), part, expected[i], p[0], p[1], p[2], p[3],
                                            p[4], p[5], x, y, forward));
  }
}

TEST(Interpolation, WorkedValues) {
  const Points line{1, 3, 0, 2, 6, 0};
  expectOutcome(false, line, -1, 2, 9, {0, 2, kOld, 4});
  expectOutcome(false, line, 0, 9, 4, {0, 2, kOld, 4});
  expectOutcome(false, {3, 3, 0, 6, 2, 0}, 0, 9, 9, {-1, 3, kOld, 4});

  const Points cup{1, 2, 4, 0, 0, 6}, nearLine{0.1, 0.2, 0.3, 0.2, 0.4, 0.6};
  expectOutcome(true, cup, -1, 5, 9, {0, 5, kOld, 12});
  expectOutcome(true, cup, 0, 9, 6, {0, -1, 4, 6});
  expectOutcome(true, cup, 0, 9, -1, {0, kExtreme / 2, -kExtreme / 2, -1});
  expectOutcome(true, {1, 2, 3, 3, 0, -5}, 0, 9, 0, {0, -2, 2, 0});
  expectOutcome(true, nearLine, -1, 1, 9, {0, 1, kOld, 2.0000000000000133});
  expectOutcome(true, nearLine, 0, 9, 1, {0, -115581103218731.9, 0.5004511278195494, 1});
}

TEST(Interpolation, AsStepwise) {
  Random random;
  const auto expectAsStepwise = [&](auto draw) {
    Points p;
    for (double& value : p) value = draw();
    const double x = draw(), y = draw();
    const HostBool flag = random.below(2) == 0 ? 0 : -1;
    expectOutcome(false, p, flag, x, y, stepwiseLinear(p, flag, x, y));
    expectOutcome(true, p, flag, x, y, stepwiseQuadratic(p, flag, x, y));
  };
  for (int i = 0; i < 20000 && !HasFailure(); ++i) {
    expectAsStepwise([&] { return random.between(-9.0, 9.0); });
    expectAsStepwise([&] { return random.edge(); });
    for (const double unit : {1.0, 1e-160, 1e160}) {
      expectAsStepwise([&] { return (static_cast<double>(random.below(7)) - 3.0) * unit; });
    }
  }
}

}  // namespace
