// The accuracy figures in the contracts of the chief header, against MPFR: for each range of each
// routine the worst error that a search finds, beside the figure that the contract states. Ends with
// status 1 if one is worse than stated.
//
// The search draws many random arguments, and climbs from the worst of them: it moves arguments by
// steps of all sizes, keeps what makes the error larger, and ends after many moves without a gain.
// Factorials and whole binomial coefficients are all tried.
#include <mpfr.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "QUVARDBS1C.h"

namespace {

constexpr int kSamples = 20000;
constexpr int kStarts = 40;
constexpr int kMovesWithoutGain = 6000;  // for each argument

// A real number of 128 bits.
class Real {
 public:
  Real(double value = 0.0) {
    mpfr_init2(value_, 128);
    mpfr_set_d(value_, value, MPFR_RNDN);
  }
  Real(const Real& other) : Real() { mpfr_set(value_, other.value_, MPFR_RNDN); }
  Real& operator=(const Real& other) {
    mpfr_set(value_, other.value_, MPFR_RNDN);
    return *this;
  }
  ~Real() { mpfr_clear(value_); }

  double toDouble() const { return mpfr_get_d(value_, MPFR_RNDN); }

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
bool operator<(const Real& a, const Real& b) { return (a - b).toDouble() < 0.0; }

Real squareRoot(const Real& a) { return Real::of(mpfr_sqrt, a); }
Real exponential(const Real& a) { return Real::of(mpfr_exp, a); }
Real logarithm(const Real& a) { return Real::of(mpfr_log, a); }
Real logGamma(const Real& a) { return Real::of(mpfr_lngamma, a); }
Real expMinusOne(const Real& a) { return Real::of(mpfr_expm1, a); }

double absoluteError(double actual, const Real& expected) {
  return std::fabs((Real(actual) - expected).toDouble());
}

double relativeError(double actual, const Real& expected) {
  return std::fabs(((Real(actual) - expected) / expected).toDouble());
}

// In distances of neighbouring doubles at the correctly rounded result.
double ulpError(double actual, const Real& expected) {
  const double value = std::fabs(expected.toDouble());
  return absoluteError(actual, expected) / (std::nextafter(value, INFINITY) - value);
}

std::mt19937_64 random64(7);

double between(double low, double high) {
  return std::uniform_real_distribution<double>(low, high)(random64);
}

bool oneIn(int count) { return random64() % static_cast<unsigned>(count) == 0; }

using Arguments = std::vector<double>;
using Draw = std::function<Arguments()>;
using Error = std::function<double(const Arguments&)>;  // negative where the arguments do not count

struct Worst {
  Arguments arguments;
  double error = -1.0;
};

// Some of the arguments moved by a common step, from about the size of one of them to its last bits.
Arguments move(Arguments arguments) {
  const double size = arguments[random64() % arguments.size()];
  const double step = std::ldexp(size * between(-1.0, 1.0), -static_cast<int>(random64() % 54));
  const std::size_t first = random64() % arguments.size();
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (i == first || oneIn(3)) arguments[i] += step;
  }
  return arguments;
}

void climb(Worst& worst, const Error& error) {
  const int patience = kMovesWithoutGain * static_cast<int>(worst.arguments.size());
  for (int moves = 0; moves < patience; ++moves) {
    Arguments arguments = move(worst.arguments);
    const double found = error(arguments);
    if (found > worst.error) {
      worst = {std::move(arguments), found};
      moves = 0;
    }
  }
}

Worst search(const Draw& draw, const Error& error) {
  std::vector<Worst> samples;
  for (int i = 0; i < kSamples; ++i) {
    Arguments arguments = draw();
    const double found = error(arguments);
    samples.push_back({std::move(arguments), found});
  }
  const auto isWorse = [](const Worst& a, const Worst& b) { return a.error > b.error; };
  std::partial_sort(samples.begin(), samples.begin() + kStarts, samples.end(), isWorse);
  samples.resize(kStarts);
  for (Worst& sample : samples) climb(sample, error);
  return *std::min_element(samples.begin(), samples.end(), isWorse);
}

bool allAsStated = true;

void print(const char* routine, const char* range, const char* unit, double stated,
           const Worst& worst) {
  std::printf("%-26s %-42s %9.3g %9.2g  %-22s", routine, range, worst.error, stated, unit);
  for (const double argument : worst.arguments) std::printf(" %.17g", argument);
  std::printf("%s\n", worst.error <= stated ? "" : "  WORSE THAN STATED");
  std::fflush(stdout);
  allAsStated = allAsStated && worst.error <= stated;
}

// A routine of one argument from `low` to `high`, drawn as often in each power of ten.
void printOneArgument(const char* routine, const char* range, const char* unit, double stated,
                      double low, double high, bool eitherSign, const Error& error) {
  const auto draw = [=] {
    const double x = std::exp(between(std::log(low), std::log(high)));
    return Arguments{eitherSign && oneIn(2) ? -x : x};
  };
  const auto errorInRange = [&](const Arguments& x) {
    const double magnitude = eitherSign ? std::fabs(x[0]) : x[0];
    return magnitude >= low && magnitude <= high ? error(x) : -1.0;
  };
  print(routine, range, unit, stated, search(draw, errorInRange));
}

void expm1xAccuracy() {
  const auto relative = [](const Arguments& x) {
    return relativeError(expm1x(x[0]), expMinusOne(x[0]));
  };
  const auto timesX = [&](const Arguments& x) { return relative(x) * std::fabs(x[0]); };
  const auto inUlp = [](const Arguments& x) { return ulpError(expm1x(x[0]), expMinusOne(x[0])); };
  const double above = std::nextafter(1e-6, 1.0);
  const auto row = [](const char* range, const char* unit, double stated, double low, double high,
                      const Error& error) {
    printOneArgument("expm1x", range, unit, stated, low, high, true, error);
  };
  row("abs(x) 1e-300 to 1e-8", "relative", 1.3e-16, 1e-300, 1e-8, relative);
  row("abs(x) 1e-8 to 1e-6", "relative", 1.7e-13, 1e-8, 1e-6, relative);
  row("abs(x) above 1e-6 to 1", "relative, times abs(x)", 1.7e-16, above, 1.0, timesX);
  row("abs(x) 1 to 709", "ulp", 1.1, 1.0, 709.0, inUlp);
}

void logExpAccuracy() {
  constexpr double limit = 1e6;
  const auto draw = [] {
    const double range = std::pow(10.0, between(-1.0, 6.0));
    const double a = between(-range, range);
    return Arguments{a, oneIn(2) ? between(-range, range) : a + between(-40.0, 40.0)};
  };
  const auto error = [](const Arguments& x) {
    if (std::fabs(x[0]) > limit || std::fabs(x[1]) > limit) return -1.0;
    const double high = std::max(x[0], x[1]), low = std::min(x[0], x[1]);
    const Real expected = Real(high) + logarithm(Real(1.0) + exponential(Real(low) - Real(high)));
    return absoluteError(LogExpAPlusExpB(x[0], x[1]), expected) / std::max(1.0, std::fabs(high));
  };
  print("LogExpAPlusExpB", "-1e6 to 1e6", "of max(1, abs(max))", 3e-16, search(draw, error));
}

void gammaAccuracy() {
  const auto absolute = [](const Arguments& x) {
    return absoluteError(GammaLn(x[0]), logGamma(x[0]));
  };
  const auto timesX = [&](const Arguments& x) { return absolute(x) * x[0]; };
  const auto relative = [](const Arguments& x) {
    return relativeError(GammaLn(x[0]), logGamma(x[0]));
  };
  const auto row = [](const char* range, const char* unit, double stated, double low, double high,
                      const Error& error) {
    printOneArgument("GammaLn", range, unit, stated, low, high, false, error);
  };
  row("4.5e-16 to 1e-12", "absolute", 0.7, 4.5e-16, 1e-12, absolute);
  row("1e-12 to 0.01", "absolute, times x", 5.5e-16, 1e-12, 0.01, timesX);
  row("0.01 to 0.5", "relative", 1.2e-14, 0.01, 0.5, relative);
  row("0.5 to 3", "absolute", 5.5e-15, 0.5, 3.0, absolute);
  row("3 to 100", "relative", 8e-15, 3.0, 100.0, relative);
  row("100 to 2.5e305", "relative", 1e-15, 100.0, 2.5e305, relative);
}

void factAccuracy() {
  Worst exact, rounded;
  Real expected = 1.0;
  for (int32_t n = 1; n <= 170; ++n) {
    expected = expected * Real(n);
    Worst& worst = n <= 22 ? exact : rounded;
    const double error = ulpError(Fact(n), expected);
    if (error > worst.error) worst = {{static_cast<double>(n)}, error};
  }
  print("Fact", "n 1 to 22", "ulp", 0.0, exact);
  print("Fact", "n 23 to 170", "ulp", 6.0, rounded);
}

void cnkAccuracy() {
  Worst exact, rounded;
  for (int n = 1; n <= 1020; ++n) {
    Real expected = 1.0;
    bool isExact = true;  // while the products on the way fit 53 bits
    for (int k = 1; 2 * k <= n; ++k) {
      // The way of Cnk leads through the coefficients of n - k + i over i.
      expected = expected * Real(n - k + 1) / Real(k);
      isExact = isExact && expected.toDouble() * k <= 0x1p53;
      Worst& worst = isExact ? exact : rounded;
      for (const double other : {k, n - k}) {
        const double error = ulpError(Cnk(n, other), expected);
        if (error > worst.error) worst = {{static_cast<double>(n), other}, error};
      }
    }
  }
  print("Cnk", "whole n to 1020, products to 2^53", "ulp", 0.0, exact);
  print("Cnk", "whole n to 1020, others", "ulp", 38.0, rounded);
}

bool areInRange(const Arguments& arguments) {
  return std::all_of(arguments.begin(), arguments.end(),
                     [](double x) { return std::fabs(x) <= 1.0; });
}

bool areApart(double a, double b) { return std::fabs(a - b) >= 0.1; }

// Half of the draws are at an end of the range, where the worst data are.
double drawValue() { return oneIn(2) ? std::copysign(1.0, between(-1, 1)) : between(-1, 1); }

double drawAway(double other) {
  return oneIn(2) ? other + std::copysign(0.1000001, between(-1, 1)) : drawValue();
}

// The arguments are x1, x2, y1, y2 and the one asked.
void linearAccuracy() {
  const auto draw = [] {
    const double x1 = between(-1, 1), y1 = drawValue();
    return Arguments{x1, drawAway(x1), y1, drawAway(y1), drawValue()};
  };
  const auto slope = [](const Arguments& p) {
    return (Real(p[3]) - Real(p[2])) / (Real(p[1]) - Real(p[0]));
  };
  const auto forward = [&](const Arguments& p) {
    if (!areInRange(p) || !areApart(p[0], p[1])) return -1.0;
    double x = p[4], y = 0.0;
    LinearInterpol(p[0], p[1], p[2], p[3], &x, &y, QUVARDBS1C_TRUE);
    return absoluteError(y, Real(p[2]) + slope(p) * (Real(x) - Real(p[0])));
  };
  const auto inverse = [&](const Arguments& p) {
    if (!areInRange(p) || !areApart(p[0], p[1]) || !areApart(p[2], p[3])) return -1.0;
    double x = 0.0, y = p[4];
    LinearInterpol(p[0], p[1], p[2], p[3], &x, &y, QUVARDBS1C_FALSE);
    return absoluteError(x, Real(p[0]) + (Real(y) - Real(p[2])) / slope(p));
  };
  print("LinearInterpol forward", "-1 to 1, x1 and x2 0.1 apart", "absolute", 1.6e-14,
        search(draw, forward));
  print("LinearInterpol inverse", "and y1 and y2 0.1 apart", "absolute", 1.6e-14,
        search(draw, inverse));
}

// The arguments are x1, x2, x3, y1, y2, y3 and the one asked.
struct Parabola {
  explicit Parabola(const Arguments& p) {
    // Divided differences.
    const Real d12 = (Real(p[4]) - Real(p[3])) / (Real(p[1]) - Real(p[0]));
    const Real d23 = (Real(p[5]) - Real(p[4])) / (Real(p[2]) - Real(p[1]));
    a = (d23 - d12) / (Real(p[2]) - Real(p[0]));
    b = d12 - a * (Real(p[0]) + Real(p[1]));
    c = Real(p[3]) - Real(p[0]) * (b + a * Real(p[0]));
  }
  Real a, b, c;
};

void quadraticAccuracy() {
  const auto draw = [] {
    const double x1 = oneIn(2) ? std::copysign(0.01, between(-1, 1)) : between(-1, 1);
    const double x2 = drawAway(x1);
    return Arguments{
        x1, x2, drawAway(oneIn(2) ? x1 : x2), drawValue(), drawValue(), drawValue(), drawValue()};
  };
  const auto counts = [](const Arguments& p) {
    return areInRange(p) && areApart(p[0], p[1]) && areApart(p[1], p[2]) && areApart(p[0], p[2]) &&
           std::min({std::fabs(p[0]), std::fabs(p[1]), std::fabs(p[2])}) >= 0.01;
  };
  const auto forward = [&](const Arguments& p) {
    if (!counts(p)) return -1.0;
    const Parabola parabola(p);
    double x = p[6], second = 0.0, y = 0.0;
    QuadraticInterpol(p[0], p[1], p[2], p[3], p[4], p[5], &x, &second, &y, QUVARDBS1C_TRUE);
    return absoluteError(y, parabola.c + (parabola.b + parabola.a * Real(x)) * Real(x));
  };
  const auto inverse = [&](const Arguments& p) {
    if (!counts(p)) return -1.0;
    const auto [a, b, c] = Parabola(p);
    double x = 0.0, second = 0.0, y = p[6];
    const Real discriminant = b * b - Real(4.0) * a * (c - Real(y));
    if (std::fabs(a.toDouble()) < 0.1 || discriminant < Real(0.01)) return -1.0;
    QuadraticInterpol(p[0], p[1], p[2], p[3], p[4], p[5], &x, &second, &y, QUVARDBS1C_FALSE);
    const Real root = squareRoot(discriminant), twice = a * Real(2.0);
    const Real one = (Real(0.0) - b - root) / twice, other = (root - b) / twice;
    return a < Real(0.0) ? std::max(absoluteError(x, other), absoluteError(second, one))
                         : std::max(absoluteError(x, one), absoluteError(second, other));
  };
  print("QuadraticInterpol forward", "-1 to 1, distances 0.1, 0.01 from 0", "absolute", 2e-10,
        search(draw, forward));
  print("QuadraticInterpol inverse", "and abs(a) from 0.1, disc from 0.01", "absolute", 3e-8,
        search(draw, inverse));
}

}  // namespace

int main() {
  std::printf("%-26s %-42s %9s %9s  %-22s %s\n", "routine", "range", "worst", "stated", "unit",
              "at");
  expm1xAccuracy();
  logExpAccuracy();
  gammaAccuracy();
  factAccuracy();
  cnkAccuracy();
  linearAccuracy();
  quadraticAccuracy();
  return allAsStated ? 0 : 1;
}
