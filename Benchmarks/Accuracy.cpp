// Compares the numeric routines with the same functions at 128 bits. Fails if an error exceeds the bound
// that the contract in QUVARDBS1C.h states. Each check quotes the words of the contract around its bound.
//
//   QUVARDAccuracy [--brief]
//
// Each search draws random arguments and improves the worst of them by hill climbing, with steps of all
// sizes. --brief draws and climbs less. For factorials and binomial coefficients, all integers are tested.
#include <algorithm>
#include <boost/multiprecision/mpfr.hpp>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <random>
#include <regex>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "QUVARDBS1C.h"

namespace {

int samples = 20000;
int starts = 40;
int movesWithoutGain = 6000;  // for each argument, before a climb ends

using Real = boost::multiprecision::number<
    boost::multiprecision::mpfr_float_backend<39, boost::multiprecision::allocate_stack>,
    boost::multiprecision::et_off>;

double absoluteError(double actual, const Real& expected) {
  return std::fabs(static_cast<double>(actual - expected));
}

double relativeError(double actual, const Real& expected) {
  return std::fabs(static_cast<double>((actual - expected) / expected));
}

// In units in the last place of the correctly rounded result.
double ulpError(double actual, const Real& expected) {
  const double value = std::fabs(static_cast<double>(expected));
  return absoluteError(actual, expected) / (std::nextafter(value, INFINITY) - value);
}

std::mt19937_64 random64(7);

double between(double low, double high) {
  return std::uniform_real_distribution<double>(low, high)(random64);
}

bool oneIn(int count) { return random64() % static_cast<unsigned>(count) == 0; }

using Arguments = std::vector<double>;
using Draw = std::function<Arguments()>;
using Error = std::function<double(const Arguments&)>;  // negative for arguments outside the range

struct Worst {
  Arguments arguments;
  double error = -1.0;
};

// Adds one step to some of the arguments. The step is between the size of an argument and its last bits.
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
  const int patience = movesWithoutGain * static_cast<int>(worst.arguments.size());
  for (int moves = 0; moves < patience; ++moves) {
    Arguments arguments = move(worst.arguments);
    const double value = error(arguments);
    if (value > worst.error) {
      worst = {std::move(arguments), value};
      moves = 0;
    }
  }
}

Worst search(const Draw& draw, const Error& error) {
  std::vector<Worst> found;
  for (int i = 0; i < samples; ++i) {
    Arguments arguments = draw();
    const double value = error(arguments);
    found.push_back({std::move(arguments), value});
  }
  const auto isWorse = [](const Worst& a, const Worst& b) { return a.error > b.error; };
  std::partial_sort(found.begin(), found.begin() + starts, found.end(), isWorse);
  found.resize(static_cast<std::size_t>(starts));
  for (Worst& sample : found) climb(sample, error);
  return *std::min_element(found.begin(), found.end(), isWorse);
}

// The text after "Accuracy:" in each contract, on one line.
std::map<std::string, std::string> readContracts() {
  std::ifstream file(QUVARD_HEADER);
  const std::string header((std::istreambuf_iterator<char>(file)), {});
  const std::string lines = std::regex_replace(header, std::regex("\\s*\n///[ ]?"), " ");
  std::map<std::string, std::string> contracts;
  const std::regex contract(" Accuracy: (.*)[^]*?\nQUVARDBS1C_API \\w+ (\\w+)\\(");
  for (std::sregex_iterator found(lines.begin(), lines.end(), contract), end; found != end;
       ++found) {
    contracts[found->str(2)] = found->str(1);
  }
  return contracts;
}

bool allHold = true;

// The bound is the first number of the quotation, or 0 if the quotation starts with "exact".
void check(const std::string& routine, const std::string& quotation, const Worst& worst) {
  static std::map<std::string, std::string> contracts = readContracts();
  const bool isQuoted = contracts[routine].find(quotation) != std::string::npos;
  const double bound = quotation.starts_with("exact")
                           ? 0.0
                           : std::stod(quotation.substr(quotation.find_first_of("0123456789")));
  const bool holds = isQuoted && worst.error <= bound;
  allHold = allHold && holds;
  std::printf("%-18s %9.3g  %-56s", routine.c_str(), worst.error, quotation.c_str());
  for (const double argument : worst.arguments) std::printf(" %.17g", argument);
  std::printf("%s\n", holds ? "" : isQuoted ? "  EXCEEDS THE BOUND" : "  NOT IN THE CONTRACT");
  std::fflush(stdout);
}

// A routine of one argument from `low` to `high`, whose logarithm is uniformly distributed.
void checkOneArgument(const char* routine, const char* quotation, double low, double high,
                      bool eitherSign, const Error& error) {
  const auto draw = [=] {
    const double x = std::exp(between(std::log(low), std::log(high)));
    return Arguments{eitherSign && oneIn(2) ? -x : x};
  };
  const auto errorInRange = [&](const Arguments& x) {
    const double magnitude = eitherSign ? std::fabs(x[0]) : x[0];
    return magnitude >= low && magnitude <= high ? error(x) : -1.0;
  };
  check(routine, quotation, search(draw, errorInRange));
}

void expm1xAccuracy() {
  const auto relative = [](const Arguments& x) {
    return relativeError(expm1x(x[0]), expm1(Real(x[0])));
  };
  const auto timesX = [&](const Arguments& x) { return relative(x) * std::fabs(x[0]); };
  const auto inUlp = [](const Arguments& x) { return ulpError(expm1x(x[0]), expm1(Real(x[0]))); };
  const double above = std::nextafter(1e-6, 1.0);
  const auto row = [](const char* quotation, double low, double high, const Error& error) {
    checkOneArgument("expm1x", quotation, low, high, true, error);
  };
  row("1.3e-16 for abs(x) up to 1e-8", 1e-300, 1e-8, relative);
  row("1.7e-13 at 1e-6", 1e-8, 1e-6, relative);
  row("1.7e-16 / abs(x) up to 1", above, 1.0, timesX);
  row("1.1 units in the last place for abs(x) from 1 to 709", 1.0, 709.0, inUlp);
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
    const Real expected = high + log(1.0 + exp(Real(low) - high));
    return absoluteError(LogExpAPlusExpB(x[0], x[1]), expected) / std::max(1.0, std::fabs(high));
  };
  check("LogExpAPlusExpB", "3e-16 times the larger of 1 and abs(max(a, b))", search(draw, error));
}

void gammaAccuracy() {
  const auto absolute = [](const Arguments& x) {
    return absoluteError(GammaLn(x[0]), lgamma(Real(x[0])));
  };
  const auto timesX = [&](const Arguments& x) { return absolute(x) * x[0]; };
  const auto relative = [](const Arguments& x) {
    return relativeError(GammaLn(x[0]), lgamma(Real(x[0])));
  };
  const auto row = [](const char* quotation, double low, double high, const Error& error) {
    checkOneArgument("GammaLn", quotation, low, high, false, error);
  };
  row("0.7 from 4.5e-16 to 1e-12", 4.5e-16, 1e-12, absolute);
  row("5.5e-16 / x from 1e-12", 1e-12, 0.01, timesX);
  row("1.2e-14 for x from 0.01 to 0.5", 0.01, 0.5, relative);
  row("5.5e-15", 0.5, 3.0, absolute);
  row("8e-15 from 3 to 100", 3.0, 100.0, relative);
  row("1e-15 from 100 to 2.5e305", 100.0, 2.5e305, relative);
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
  check("Fact", "exact up to 22", exact);
  check("Fact", "6 units in the last place up to 170", rounded);
}

void cnkAccuracy() {
  Worst exact, rounded;
  for (int n = 1; n <= 1020; ++n) {
    Real expected = 1.0;
    bool isExact = true;  // while the products fit 53 bits
    for (int k = 1; 2 * k <= n; ++k) {
      // Cnk computes the coefficients of n - k + i over i in turn.
      expected = expected * Real(n - k + 1) / Real(k);
      isExact = isExact && expected * k <= 0x1p53;
      Worst& worst = isExact ? exact : rounded;
      for (const double other : {k, n - k}) {
        const double error = ulpError(Cnk(n, other), expected);
        if (error > worst.error) worst = {{static_cast<double>(n), other}, error};
      }
    }
  }
  check("Cnk", "exact as long as all products are at most 2^53", exact);
  check("Cnk", "38 units in the last place", rounded);
}

bool areInRange(const Arguments& arguments) {
  return std::all_of(arguments.begin(), arguments.end(),
                     [](double x) { return std::fabs(x) <= 1.0; });
}

bool areApart(double a, double b) { return std::fabs(a - b) >= 0.1; }

// Half of the values are at an end of the range, where errors are largest.
double drawValue() { return oneIn(2) ? std::copysign(1.0, between(-1, 1)) : between(-1, 1); }

double drawAway(double other) {
  return oneIn(2) ? other + std::copysign(0.1000001, between(-1, 1)) : drawValue();
}

// The arguments are x1, x2, y1, y2 and the given x or y.
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
  check("LinearInterpol", "1.6e-14 forward", search(draw, forward));
  check("LinearInterpol", "1.6e-14 inverse", search(draw, inverse));
}

// The arguments are x1, x2, x3, y1, y2, y3 and the given x or y.
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
  const auto isInRange = [](const Arguments& p) {
    return areInRange(p) && areApart(p[0], p[1]) && areApart(p[1], p[2]) && areApart(p[0], p[2]) &&
           std::min({std::fabs(p[0]), std::fabs(p[1]), std::fabs(p[2])}) >= 0.01;
  };
  const auto forward = [&](const Arguments& p) {
    if (!isInRange(p)) return -1.0;
    const Parabola parabola(p);
    double x = p[6], second = 0.0, y = 0.0;
    QuadraticInterpol(p[0], p[1], p[2], p[3], p[4], p[5], &x, &second, &y, QUVARDBS1C_TRUE);
    return absoluteError(y, parabola.c + (parabola.b + parabola.a * Real(x)) * Real(x));
  };
  const auto inverse = [&](const Arguments& p) {
    if (!isInRange(p)) return -1.0;
    const auto [a, b, c] = Parabola(p);
    double x = 0.0, second = 0.0, y = p[6];
    const Real discriminant = b * b - 4.0 * a * (c - Real(y));
    if (abs(a) < 0.1 || discriminant < 0.01) return -1.0;
    QuadraticInterpol(p[0], p[1], p[2], p[3], p[4], p[5], &x, &second, &y, QUVARDBS1C_FALSE);
    const Real root = sqrt(discriminant), twice = a * 2.0;
    const Real one = (-b - root) / twice, other = (root - b) / twice;
    return a < 0.0 ? std::max(absoluteError(x, other), absoluteError(second, one))
                   : std::max(absoluteError(x, one), absoluteError(second, other));
  };
  check("QuadraticInterpol", "2e-10 forward", search(draw, forward));
  check("QuadraticInterpol", "3e-8 inverse", search(draw, inverse));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc > 1 && argv[1] == std::string_view("--brief")) {
    samples = 2000;
    starts = 6;
    movesWithoutGain = 1500;
  }
  std::printf("%-18s %9s  %-56s %s\n", "routine", "worst", "bound in the contract", "at");
  expm1xAccuracy();
  logExpAccuracy();
  gammaAccuracy();
  factAccuracy();
  cnkAccuracy();
  linearAccuracy();
  quadraticAccuracy();
  return allHold ? 0 : 1;
}
