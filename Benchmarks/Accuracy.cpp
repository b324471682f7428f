// The accuracy figures in the contracts of the chief header, measured against MPFR:
// the largest error over random arguments of each stretch, and where it was found.
#include <mpfr.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <random>
#include <string>

#include "QUVARDBS1C.h"

namespace {

constexpr int kSamples = 50000;

// A real number of 300 bits.
class Real {
 public:
  Real(double value = 0.0) {
    mpfr_init2(value_, 300);
    mpfr_set_d(value_, value, MPFR_RNDN);
  }
  Real(const Real& other) : Real() { mpfr_set(value_, other.value_, MPFR_RNDN); }
  Real& operator=(const Real& other) {
    mpfr_set(value_, other.value_, MPFR_RNDN);
    return *this;
  }
  ~Real() { mpfr_clear(value_); }

  double rounded() const { return mpfr_get_d(value_, MPFR_RNDN); }

  using Unary = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t);
  using Binary = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_srcptr, mpfr_rnd_t);
  static Real of(Unary function, const Real& a) {
    Real result;
    function(result.value_, a.value_, MPFR_RNDN);
    return result;
  }
  static Real of(Binary function, const Real& a, const Real& b) {
    Real result;
    function(result.value_, a.value_, b.value_, MPFR_RNDN);
    return result;
  }

 private:
  mpfr_t value_;
};

Real operator+(const Real& a, const Real& b) { return Real::of(mpfr_add, a, b); }
Real operator-(const Real& a, const Real& b) { return Real::of(mpfr_sub, a, b); }
Real operator*(const Real& a, const Real& b) { return Real::of(mpfr_mul, a, b); }
Real operator/(const Real& a, const Real& b) { return Real::of(mpfr_div, a, b); }
bool operator<(const Real& a, const Real& b) { return (a - b).rounded() < 0.0; }

Real squareRoot(const Real& a) { return Real::of(mpfr_sqrt, a); }
Real exponential(const Real& a) { return Real::of(mpfr_exp, a); }
Real logarithm(const Real& a) { return Real::of(mpfr_log, a); }
Real logGamma(const Real& a) { return Real::of(mpfr_lngamma, a); }
Real expMinusOne(const Real& a) { return Real::of(mpfr_expm1, a); }

std::mt19937_64 random64(7);

double between(double low, double high) {
  return std::uniform_real_distribution<double>(low, high)(random64);
}

// As many arguments in each power of ten.
double spread(double low, double high) {
  return std::clamp(std::exp(between(std::log(low), std::log(high))), low, high);
}

// The largest of the errors, each told as a multiple of a unit.
class Largest {
 public:
  void note(double actual, const Real& expected, double unit, const std::string& where) {
    const double error = std::fabs((Real(actual) - expected).rounded() / unit);
    if (!(error <= largest_)) {
      largest_ = error;
      where_ = where;
    }
  }
  void print(const char* what, const char* unit) const {
    std::printf("%-66s %9.3g %s at %s\n", what, largest_, unit, where_.c_str());
  }

 private:
  double largest_ = -1.0;
  std::string where_;
};

std::string text(std::initializer_list<double> arguments) {
  std::string result;
  char digits[32];
  for (const double argument : arguments) {
    std::snprintf(digits, sizeof digits, "%s%.17g", result.empty() ? "" : ", ", argument);
    result += digits;
  }
  return result;
}

// The distance of neighbouring doubles at the correctly rounded result.
double ulp(const Real& expected) {
  const double value = std::fabs(expected.rounded());
  return std::nextafter(value, INFINITY) - value;
}

void expm1xAccuracy() {
  const struct {
    const char* what;
    double low, high;
  } stretches[] = {{"expm1x, abs(x) from 1e-300 to 1e-8", 1e-300, 1e-8},
                   {"expm1x, abs(x) from 1e-8 to 1e-6", 1e-8, 1e-6},
                   {"expm1x, abs(x) above 1e-6 to 0.001", 1.0000001e-6, 1e-3},
                   {"expm1x, abs(x) from 0.001 to 1", 1e-3, 1.0},
                   {"expm1x, abs(x) from 1 to 709", 1.0, 709.0}};
  for (const auto& [what, low, high] : stretches) {
    Largest inUlp, relative;
    for (int i = 0; i < kSamples; ++i) {
      const double x = i % 2 == 0 ? spread(low, high) : -spread(low, high);
      const Real expected = expMinusOne(x);
      inUlp.note(expm1x(x), expected, ulp(expected), text({x}));
      relative.note(expm1x(x), expected, expected.rounded(), text({x}));
    }
    inUlp.print(what, "ulp");
    relative.print("", "relative");
  }
}

void logExpAccuracy() {
  for (const double range : {1.0, 700.0, 1e6}) {
    Largest largest;
    for (int i = 0; i < kSamples; ++i) {
      const double a = between(-range, range);
      const double b = i % 2 == 0 ? between(-range, range) : a + between(-40.0, 40.0);
      const double high = std::max(a, b), low = std::min(a, b);
      const Real expected = Real(high) + logarithm(Real(1.0) + exponential(Real(low) - Real(high)));
      const double unit = std::max(1.0, std::fabs(high));
      largest.note(LogExpAPlusExpB(a, b), expected, unit, text({a, b}));
    }
    const std::string what = "LogExpAPlusExpB, abs of arguments to " + text({range});
    largest.print(what.c_str(), "of max(1, abs of the larger)");
  }
}

void gammaAccuracy() {
  const struct {
    const char* what;
    double low, high;
  } stretches[] = {{"GammaLn, x from 1e-12 to 0.01", 1e-12, 0.01},
                   {"GammaLn, x from 0.01 to 0.5", 0.01, 0.5},
                   {"GammaLn, x from 0.5 to 3", 0.5, 3.0},
                   {"GammaLn, x from 3 to 100", 3.0, 100.0},
                   {"GammaLn, x from 100 to 1e6", 100.0, 1e6},
                   {"GammaLn, x from 1e6 to 2.5e305", 1e6, 2.5e305}};
  for (const auto& [what, low, high] : stretches) {
    Largest absolute, relative;
    for (int i = 0; i < kSamples; ++i) {
      const double x = spread(low, high);
      const Real expected = logGamma(x);
      absolute.note(GammaLn(x), expected, 1.0, text({x}));
      relative.note(GammaLn(x), expected, expected.rounded(), text({x}));
    }
    absolute.print(what, "absolute");
    relative.print("", "relative");
  }
}

void factAccuracy() {
  Largest exact, rounded;
  Real expected = 1.0;
  for (int32_t n = 1; n <= 170; ++n) {
    expected = expected * Real(n);
    (n <= 22 ? exact : rounded).note(Fact(n), expected, ulp(expected), text({double(n)}));
  }
  exact.print("Fact, n to 22", "ulp");
  rounded.print("Fact, n from 23 to 170", "ulp");
}

void cnkAccuracy() {
  Largest exact, rounded;
  for (int n = 1; n <= 1020; ++n) {
    Real expected = 1.0;
    bool isExact = true;  // while the products on the way fit 53 bits
    for (int k = 1; 2 * k <= n; ++k) {
      // The way of Cnk leads through the coefficients of n - k + i over i.
      expected = expected * Real(n - k + 1) / Real(k);
      isExact = isExact && expected.rounded() * k <= 0x1p53;
      (isExact ? exact : rounded)
          .note(Cnk(n, k), expected, ulp(expected), text({double(n), double(k)}));
    }
  }
  exact.print("Cnk, whole n to 1020, k * Cnk(n, k) to 2^53, k to n / 2", "ulp");
  rounded.print("Cnk, whole n to 1020, beyond", "ulp");
}

// The worst data lie at the ends of the stated ranges, so half of the draws do.
double abscissa(double other) {
  const double edge = between(0, 4);
  const double drawn = edge < 1   ? other + 0.1000001
                       : edge < 2 ? other - 0.1000001
                       : edge < 3 ? std::copysign(0.0100001, between(-1, 1))
                                  : between(-1, 1);
  return std::fabs(drawn) <= 1 ? drawn : between(-1, 1);
}

double value() { return between(0, 2) < 1 ? std::copysign(1.0, between(-1, 1)) : between(-1, 1); }

void linearAccuracy() {
  Largest forward, inverse;
  for (int i = 0; i < kSamples; ++i) {
    const double x1 = between(-1, 1), x2 = abscissa(x1), y1 = value();
    const double y2 = between(0, 2) < 1 ? y1 - std::copysign(0.1000001, y1) : value();
    if (std::fabs(x2 - x1) < 0.1 || std::fabs(y2 - y1) < 0.1) continue;
    const Real slope = (Real(y2) - Real(y1)) / (Real(x2) - Real(x1));
    const std::string where = text({x1, x2, y1, y2});
    double x = value(), y = 0.0;
    LinearInterpol(x1, x2, y1, y2, &x, &y, -1);
    forward.note(y, Real(y1) + slope * (Real(x) - Real(x1)), 1.0, where);
    y = between(-1, 1);
    LinearInterpol(x1, x2, y1, y2, &x, &y, 0);
    inverse.note(x, Real(x1) + (Real(y) - Real(y1)) / slope, 1.0, where);
  }
  forward.print("LinearInterpol forward, all in [-1, 1], distances from 0.1", "absolute");
  inverse.print("LinearInterpol inverse", "absolute");
}

void quadraticAccuracy() {
  Largest forward, inverse;
  for (int i = 0; i < kSamples; ++i) {
    const double x1 = abscissa(0.0), x2 = abscissa(x1), x3 = abscissa(x2);
    const double y1 = value(), y2 = value(), y3 = value();
    if (std::min({std::fabs(x2 - x1), std::fabs(x3 - x1), std::fabs(x3 - x2)}) < 0.1) continue;
    if (std::min({std::fabs(x1), std::fabs(x2), std::fabs(x3)}) < 0.01) continue;
    // Divided differences.
    const Real d12 = (Real(y2) - Real(y1)) / (Real(x2) - Real(x1));
    const Real d23 = (Real(y3) - Real(y2)) / (Real(x3) - Real(x2));
    const Real a = (d23 - d12) / (Real(x3) - Real(x1));
    const Real b = d12 - a * (Real(x1) + Real(x2));
    const Real c = Real(y1) - Real(x1) * (b + a * Real(x1));
    const std::string where = text({x1, x2, x3, y1, y2, y3});

    double x = value(), second = 0.0, y = 0.0;
    QuadraticInterpol(x1, x2, x3, y1, y2, y3, &x, &second, &y, -1);
    forward.note(y, c + (b + a * Real(x)) * Real(x), 1.0, where);

    y = between(-1, 1);
    const Real disc = b * b - Real(4.0) * a * (c - Real(y));
    if (std::fabs(a.rounded()) < 0.1 || disc < Real(0.01)) continue;
    QuadraticInterpol(x1, x2, x3, y1, y2, y3, &x, &second, &y, 0);
    const Real root = squareRoot(disc);
    const Real low = a < Real(0.0) ? root - b : Real(0.0) - b - root;
    const Real high = a < Real(0.0) ? Real(0.0) - b - root : root - b;
    inverse.note(x, low / (a * Real(2.0)), 1.0, where);
    inverse.note(second, high / (a * Real(2.0)), 1.0, where);
  }
  forward.print("QuadraticInterpol forward, all in [-1, 1], distances from 0.1", "absolute");
  inverse.print("QuadraticInterpol inverse, abs(a) from 0.1, disc from 0.01", "absolute");
}

}  // namespace

int main() {
  expm1xAccuracy();
  logExpAccuracy();
  gammaAccuracy();
  factAccuracy();
  cnkAccuracy();
  linearAccuracy();
  quadraticAccuracy();
}
