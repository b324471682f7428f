#include "QUVARDBS1C.h"
#include "host/HostBool.h"
#include "numerics/StrictDoubles.h"

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

// In exact arithmetic i.x * (k.x - j.x), and so 0 where the first point is at 0.
double determinant(const Point& i, const Point& j, const Point& k) {
  return (i.x + j.x) * k.x - (i.x + k.x) * j.x;
}

double constantTerm(const Point& i, const Point& j, const Point& k) {
  const double factor = (1.0 / determinant(i, j, k)) / ((j.x - i.x) * (k.x - i.x));
  const double first = (j.x * j.x * i.y - i.x * i.x * j.y) * ((k.x - i.x) * k.x);
  const double second = (i.x * i.x * k.y - k.x * k.x * i.y) * ((j.x - i.x) * j.x);
  return (second + first) * factor;
}

double linearTerm(const Point& i, const Point& j, double c) {
  const double ii = i.x * i.x;
  const double jj = j.x * j.x;
  return ((jj * i.y + (ii - jj) * c) - ii * j.y) / ((i.x * j.x) * (j.x - i.x));
}

// Each term is worked out from the first points, of those in turn, that give it a divisor.
Parabola parabolaThrough(const Point& p1, const Point& p2, const Point& p3) {
  const double c = isNumberOtherThanZero(determinant(p1, p2, p3))   ? constantTerm(p1, p2, p3)
                   : isNumberOtherThanZero(determinant(p2, p3, p1)) ? constantTerm(p2, p3, p1)
                                                                    : constantTerm(p3, p1, p2);
  const double b = isNumberOtherThanZero(p1.x * p2.x)   ? linearTerm(p1, p2, c)
                   : isNumberOtherThanZero(p2.x * p3.x) ? linearTerm(p2, p3, c)
                                                        : linearTerm(p3, p1, c);
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
  // For a value that the parabola never reaches, sqr gives its negative extreme, and so the two
  // results come out in the wrong order.
  const double root = sqr((c - *y) * (-4.0 * a) + b * b);
  const double minus = -b - root;
  const double plus = root - b;
  *x = ((a > 0.0 ? minus : plus) * 0.5) / a;
  *xSecond = (0.5 * (a > 0.0 ? plus : minus)) / a;
  return kComputed;
}
