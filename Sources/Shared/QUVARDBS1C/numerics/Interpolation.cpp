#include "QUVARDBS1C.h"
#include "host/HostBool.h"
#include "numerics/GuardedRoot.h"

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

// The constant term. The determinant is i.x * (k.x - j.x) but for rounding, and so 0 for a point at
// 0: the points are turned, up to twice, until it is not.
double constantTerm(const Point& i, const Point& j, const Point& k, int turns = 2) {
  const double determinant = (i.x + j.x) * k.x - (i.x + k.x) * j.x;
  if (turns > 0 && !isNumberOtherThanZero(determinant)) return constantTerm(j, k, i, turns - 1);
  const double factor = (1.0 / determinant) / ((j.x - i.x) * (k.x - i.x));
  const double first = (j.x * j.x * i.y - i.x * i.x * j.y) * ((k.x - i.x) * k.x);
  const double second = (i.x * i.x * k.y - k.x * k.x * i.y) * ((j.x - i.x) * j.x);
  return (second + first) * factor;
}

// The linear term, from two points that are not at 0.
double linearTerm(const Point& i, const Point& j, const Point& k, double c, int turns = 2) {
  const double product = i.x * j.x;
  if (turns > 0 && !isNumberOtherThanZero(product)) return linearTerm(j, k, i, c, turns - 1);
  const double ii = i.x * i.x;
  const double jj = j.x * j.x;
  return ((jj * i.y + (ii - jj) * c) - ii * j.y) / (product * (j.x - i.x));
}

Parabola parabolaThrough(const Point& p1, const Point& p2, const Point& p3) {
  const double c = constantTerm(p1, p2, p3);
  const double b = linearTerm(p1, p2, p3, c);
  const auto& [x, y] = p1.x * p1.x == 0.0 ? p2 : p1;
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
  const auto [a, b, c] = parabolaThrough({x1, y1}, {x2, y2}, {x3, y3});
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
  const double root = quvard::guardedRoot((c - *y) * (-4.0 * a) + b * b);
  const double minus = -b - root;
  const double plus = root - b;
  *x = ((a > 0.0 ? minus : plus) * 0.5) / a;
  *xSecond = (0.5 * (a > 0.0 ? plus : minus)) / a;
  return kComputed;
}
