#include <array>
#include <cmath>

#include "QUVARDBS1C.h"
#include "support/Doubles.h"

namespace {

// What a call leaves behind: status, x, xSecond, y.
struct Outcome {
  int32_t status;
  double x, xSecond, y;
};

testing::AssertionResult same(const Outcome& actual, const Outcome& expected) {
  if (actual.status != expected.status) return testing::AssertionFailure() << actual.status;
  for (const auto& [a, e] : {std::pair(actual.x, expected.x),
                             {actual.xSecond, expected.xSecond},
                             {actual.y, expected.y}}) {
    if (const auto result = sameBits(a, e); !result) return result;
  }
  return testing::AssertionSuccess();
}

// What the caller's doubles hold where a row does not say.
constexpr double kOld = 77.0;

using Two = std::array<double, 4>;    // x1, x2, y1, y2
using Three = std::array<double, 6>;  // x1, x2, x3, y1, y2, y3

Outcome linear(const Two& p, HostBool forward, double x, double y) {
  const int32_t status = LinearInterpol(p[0], p[1], p[2], p[3], &x, &y, forward);
  return {status, x, kOld, y};
}

Outcome quadratic(const Three& p, HostBool forward, double x, double y) {
  double second = kOld;
  const int32_t status =
      QuadraticInterpol(p[0], p[1], p[2], p[3], p[4], p[5], &x, &second, &y, forward);
  return {status, x, second, y};
}

Outcome stepwiseLinear(const Two& p, bool forward, double x, double y) {
  const auto [x1, x2, y1, y2] = p;
  if (x1 == x2) return {-1, x1, kOld, (y1 + y2) * 0.5};
  const double a = (y2 - y1) / (x2 - x1);
  const double b = (x2 * y1 - x1 * y2) / (x2 - x1);
  if (forward) return {0, x, kOld, b + a * x};
  if (a == 0.0) return {-1, x, kOld, y};
  return {0, (y - b) / a, kOld, y};
}

bool counts(double value) { return value != 0.0 && !std::isnan(value); }

Outcome stepwiseQuadratic(const Three& p, bool forward, double x, double y) {
  const double xs[] = {0, p[0], p[1], p[2]}, ys[] = {0, p[3], p[4], p[5]};
  if (xs[2] == xs[3] || xs[1] == xs[2] || xs[1] == xs[3]) return {-1, x, kOld, y};

  const auto d = [&](int i, int j, int k) {
    return (xs[i] + xs[j]) * xs[k] - (xs[i] + xs[k]) * xs[j];
  };
  int i = 3, j = 1, k = 2;
  if (counts(d(1, 2, 3))) {
    i = 1, j = 2, k = 3;
  } else if (counts(d(2, 3, 1))) {
    i = 2, j = 3, k = 1;
  }
  const double kk = (1.0 / d(i, j, k)) / ((xs[j] - xs[i]) * (xs[k] - xs[i]));
  const double pp = ((xs[j] * xs[j]) * ys[i] - (xs[i] * xs[i]) * ys[j]) * ((xs[k] - xs[i]) * xs[k]);
  const double qq = ((xs[i] * xs[i]) * ys[k] - (xs[k] * xs[k]) * ys[i]) * ((xs[j] - xs[i]) * xs[j]);
  const double c = (qq + pp) * kk;

  i = 3, j = 1;
  if (counts(xs[1] * xs[2])) {
    i = 1, j = 2;
  } else if (counts(xs[2] * xs[3])) {
    i = 2, j = 3;
  }
  const double ii = xs[i] * xs[i], jj = xs[j] * xs[j];
  const double b =
      ((jj * ys[i] + (ii - jj) * c) - ii * ys[j]) / ((xs[i] * xs[j]) * (xs[j] - xs[i]));

  i = xs[1] * xs[1] == 0.0 ? 2 : 1;
  const double a = ((ys[i] - xs[i] * b) - c) / (xs[i] * xs[i]);
  if (forward) return {0, x, kOld, c + (b + a * x) * x};
  if (a == 0.0 && b == 0.0) return {-1, x, kOld, y};
  if (a == 0.0) return {0, (y - c) / b, kOld, y};

  const double disc = (c - y) * (-4.0 * a) + b * b;
  const double s = 0.0 > disc ? -kExtreme : std::sqrt(disc);
  const double first = a > 0.0 ? -b - s : s - b;
  const double second = a > 0.0 ? s - b : -b - s;
  return {0, (first * 0.5) / a, (0.5 * second) / a, y};
}

TEST(Interpolation, Linear) {
  struct Row {
    Two points;
    HostBool forward;
    double x, y;
    Outcome expected;
  };
  const std::vector<Row> rows{
      {{1, 3, 2, 6}, -1, 2, kOld, {0, 2, kOld, 4}},
      {{1, 3, 2, 6}, 0, kOld, 4, {0, 2, kOld, 4}},
      {{3, 1, 6, 2}, -1, 2, kOld, {0, 2, kOld, 4}},
      {{3, 3, 6, 2}, -1, kOld, kOld, {-1, 3, kOld, 4}},
      {{3, 3, 6, 2}, 0, kOld, kOld, {-1, 3, kOld, 4}},
      {{0.0, -0.0, 6, 2}, 0, kOld, kOld, {-1, 0.0, kOld, 4}},
      {{1, 3, 5, 5}, 0, kOld, 5, {-1, kOld, kOld, 5}},
      {{1, 3, 5, 5}, -1, 9, kOld, {0, 9, kOld, 5}},
      {{kNaN, 3, 5, 5}, -1, 9, kOld, {0, 9, kOld, kNaN}},
      {{kNaN, 3, 5, 5}, 0, kOld, 9, {0, kNaN, kOld, 9}},
  };
  for (const auto& [points, forward, x, y, expected] : rows) {
    EXPECT_TRUE(same(linear(points, forward, x, y), expected)) << points[0] << ", " << points[1];
  }
}

TEST(Interpolation, Quadratic) {
  struct Row {
    Three points;
    HostBool forward;
    double x, y;
    Outcome expected;
  };
  const double extreme = 8.98846567431155e+307;
  const std::vector<Row> rows{
      {{1, 2, 4, 0, 0, 6}, -1, 5, kOld, {0, 5, kOld, 12}},
      {{1, 2, 4, 0, 0, 6}, 0, kOld, 6, {0, -1, 4, 6}},
      {{0, 2, 4, 2, 0, 6}, 0, kOld, 6, {0, -1, 4, 6}},
      {{1, 0, 2, 0, 2, 0}, -1, 5, kOld, {0, 5, kOld, 12}},
      {{1, 2, 3, 3, 0, -5}, 0, kOld, 0, {0, -2, 2, 0}},
      {{1, 2, 3, 1, 0, 1}, 0, kOld, 0, {0, 2, 2, 0}},
      {{1, 2, 3, 3, 5, 7}, 0, kOld, 9, {0, 4, kOld, 9}},
      {{1, 2, 4, 0, 0, 6}, 0, kOld, -0.25, {0, 1.5, 1.5, -0.25}},
      {{1, 2, 4, 0, 0, 6}, 0, kOld, -1, {0, extreme, -extreme, -1}},
      {{1, 2, 3, 2, 5, 10}, 0, kOld, 0, {0, extreme, -extreme, 0}},
      {{2, 4, 6, 2, 5, 10}, 0, kOld, 0, {0, kInf, -kInf, 0}},
      {{1, 2, 3, 4, 4, 4}, 0, kOld, 4, {-1, kOld, kOld, 4}},
      {{1, 2, 3, 4, 4, 4}, -1, 9, kOld, {0, 9, kOld, 4}},
      {{1, 1, 3, 1, 2, 3}, -1, 9, kOld, {-1, 9, kOld, kOld}},
      {{1, 3, 3, 1, 2, 3}, 0, kOld, 9, {-1, kOld, kOld, 9}},
      {{3, 2, 3, 1, 2, 3}, 0, kOld, 9, {-1, kOld, kOld, 9}},
      {{0.1, 0.2, 0.3, 0.2, 0.4, 0.6}, -1, 1, kOld, {0, 1, kOld, 2.0000000000000133}},
      {{0.1, 0.2, 0.3, 0.2, 0.4, 0.6}, 0, kOld, 1, {0, -115581103218731.9, 0.5004511278195494, 1}},
      {{1e-20, 1, 2, 2, 0, 0}, -1, 5, kOld, {0, 5, kOld, 2}},
      {{1e-20, 1, 2, 2, 0, 0}, 0, kOld, 2, {-1, kOld, kOld, 2}},
      {{1e-200, 2e-200, 3e-200, 1, 2, 4}, -1, 1, kOld, {0, 1, kOld, kNaN}},
  };
  for (const auto& [points, forward, x, y, expected] : rows) {
    EXPECT_TRUE(same(quadratic(points, forward, x, y), expected))
        << points[0] << ", " << points[1] << ", " << points[2] << ": " << forward;
  }
}

TEST(Interpolation, EveryFlag) {
  for (int32_t low = 0; low <= 0xFFFF; ++low) {
    for (const uint32_t noise : {0x00000000U, 0x00010000U, 0xFFFF0000U}) {
      const auto flag = static_cast<HostBool>(static_cast<uint32_t>(low) | noise);
      const bool forward = low == 0xFFFF;
      ASSERT_EQ(linear({1, 3, 2, 6}, flag, 2, 4).y, 4) << flag;
      ASSERT_EQ(linear({1, 3, 2, 6}, flag, 1, 4).x, forward ? 1 : 2) << flag;
      ASSERT_EQ(quadratic({1, 2, 4, 0, 0, 6}, flag, 5, 6).y, forward ? 12 : 6) << flag;
    }
  }
}

TEST(Interpolation, AsStepwise) {
  Arguments arguments;
  const auto expectSame = [&](const Three& p, double x, double y) {
    for (const HostBool forward : {-1, 0}) {
      const Two two{p[0], p[1], p[3], p[4]};
      ASSERT_TRUE(same(linear(two, forward, x, y), stepwiseLinear(two, forward != 0, x, y)))
          << p[0] << ", " << p[1] << ", " << p[3] << ", " << p[4] << ": " << x << ", " << y;
      ASSERT_TRUE(same(quadratic(p, forward, x, y), stepwiseQuadratic(p, forward != 0, x, y)))
          << p[0] << ", " << p[1] << ", " << p[2] << ", " << p[3] << ", " << p[4] << ", " << p[5]
          << ": " << x << ", " << y;
    }
  };
  const auto filled = [](auto draw) {
    return Three{draw(), draw(), draw(), draw(), draw(), draw()};
  };
  for (int i = 0; i < 20000; ++i) {
    const double x = arguments.between(-9.0, 9.0), y = arguments.between(-9.0, 9.0);
    expectSame(filled([&] { return arguments.between(-9.0, 9.0); }), x, y);
    expectSame(filled([&] { return double(arguments.integer(-3, 3)); }), x, y);
    expectSame(filled([&] { return arguments.integer(-3, 3) * 1e-160; }), x, y);
    expectSame(filled([&] { return arguments.integer(-3, 3) * 1e160; }), x, y);
    expectSame(filled([&] { return arguments.edge(); }), arguments.edge(), arguments.edge());
  }
}

}  // namespace
