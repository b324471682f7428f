#include "QUVARDBS1C.h"
#include "host/HostBool.h"

namespace {

constexpr int32_t kComputed = 0;
constexpr int32_t kDegenerate = -1;

struct Point {
  double x, y;
};

struct Parabola {
  double a, b, c;
};

bool isNumberOtherThanZero(double value) { return value < 0.0 || value > 0.0; }

// The constant term. The determinant is x_i * (x_k - x_j) but for rounding, and so 0 for a point at
// 0: the points are turned until it is not.
double constantTerm(const Point (&p)[3]) {
  for (int turn = 0;; ++turn) {
    const auto& [xi, yi] = p[turn];
    const auto& [xj, yj] = p[(turn + 1) % 3];
    const auto& [xk, yk] = p[(turn + 2) % 3];
    const double determinant = (xi + xj) * xk - (xi + xk) * xj;
    if (turn < 2 && !isNumberOtherThanZero(determinant)) continue;
    const double factor = (1.0 / determinant) / ((xj - xi) * (xk - xi));
    const double first = (xj * xj * yi - xi * xi * yj) * ((xk - xi) * xk);
    const double second = (xi * xi * yk - xk * xk * yi) * ((xj - xi) * xj);
    return (second + first) * factor;
  }
}

// The linear term, from two points that are not at 0.
double linearTerm(const Point (&p)[3], double c) {
  for (int turn = 0;; ++turn) {
    const auto& [xi, yi] = p[turn];
    const auto& [xj, yj] = p[(turn + 1) % 3];
    if (turn < 2 && !isNumberOtherThanZero(xi * xj)) continue;
    return ((xj * xj * yi + (xi * xi - xj * xj) * c) - xi * xi * yj) / ((xi * xj) * (xj - xi));
  }
}

Parabola parabolaThrough(const Point (&p)[3]) {
  const double c = constantTerm(p);
  const double b = linearTerm(p, c);
  const auto& [x, y] = p[p[0].x * p[0].x == 0.0 ? 1 : 0];
  return {((y - x * b) - c) / (x * x), b, c};
}

}  // namespace

int32_t LinearInterpol(double x1, double x2, double y1, double y2, double* x, double* y,
                       HostBool forward) noexcept {
  if (x1 == x2) {
    *x = x1;
    *y = (y1 + y2) * 0.5;
    return kDegenerate;
  }
  const double a = (y2 - y1) / (x2 - x1);
  const double b = (x2 * y1 - x1 * y2) / (x2 - x1);
  if (quvard::isTrue(forward)) {
    *y = b + a * *x;
    return kComputed;
  }
  if (a == 0.0) return kDegenerate;
  *x = (*y - b) / a;
  return kComputed;
}

int32_t QuadraticInterpol(double x1, double x2, double x3, double y1, double y2, double y3,
                          double* x, double* xSecond, double* y, HostBool forward) noexcept {
  if (x2 == x3 || x1 == x2 || x1 == x3) return kDegenerate;
  const auto [a, b, c] = parabolaThrough({{x1, y1}, {x2, y2}, {x3, y3}});
  if (quvard::isTrue(forward)) {
    *y = c + (b + a * *x) * *x;
    return kComputed;
  }
  if (a == 0.0) {
    if (b == 0.0) return kDegenerate;
    *x = (*y - c) / b;
    return kComputed;
  }
  // A value that the parabola never reaches gives a root of -ExtremeDbl here, and so the roots in
  // the wrong order.
  const double root = sqr((c - *y) * (-4.0 * a) + b * b);
  const double minus = -b - root;
  const double plus = root - b;
  *x = ((a > 0.0 ? minus : plus) * 0.5) / a;
  *xSecond = (0.5 * (a > 0.0 ? plus : minus)) / a;
  return kComputed;
}
