// The numeric routines against the steps of their contracts, written down plainly, whose results have
// the same bits, and against other libraries. Arguments are as irregular as those of a statistic.
#include <gsl/gsl_poly.h>
#include <gsl/gsl_sf.h>

#include <algorithm>
#include <boost/integer/common_factor_rt.hpp>
#include <boost/math/special_functions.hpp>
#include <cmath>
#include <numeric>
#include <tuple>
#include <type_traits>

#include "Contestants.h"
#include "Transcriptions.h"

namespace benchmarks {
namespace {

// A job that runs through rows of arguments. Every contestant is called by a pointer; the library's
// routine, as for any caller, through the table of the loader as well, for half a nanosecond.
template <typename Return, typename... Arguments>
class NumericJob {
 public:
  using Function = Return (*)(Arguments...);
  using Rows = std::vector<std::tuple<Arguments...>>;

  NumericJob(const char* name, const Rows& rows, double tolerance)
      : job_(addJob("numerics", name)), rows_(rows) {
    job_.calls = static_cast<double>(rows.size());
    job_.tolerance = tolerance;
  }

  NumericJob& add(std::string contestant, Function function) {
    const auto call = [function](const auto& row) { return std::apply(function, row); };
    job_.contestants.push_back({std::move(contestant),
                                [rows = rows_, call](benchmark::State& state) {
                                  for (auto _ : state) {
                                    for (const auto& row : rows)
                                      benchmark::DoNotOptimize(call(row));
                                  }
                                },
                                [rows = rows_, call] {
                                  Result result;
                                  for (const auto& row : rows) {
                                    result.numbers.push_back(static_cast<double>(call(row)));
                                  }
                                  return result;
                                }});
    return *this;
  }

 private:
  Job& job_;
  Rows rows_;
};

// The routine, its transcription, and rows of arguments made by a function of random numbers.
template <typename Return, typename... Arguments, typename Make>
NumericJob<Return, Arguments...> addNumeric(
    const char* name, Return (*ours)(Arguments...),
    std::type_identity_t<Return (*)(Arguments...)> transcription, Make make,
    double tolerance = 1e-12) {
  std::mt19937 random(1);
  std::vector<std::tuple<Arguments...>> rows(256);
  for (auto& row : rows) row = make(random);
  NumericJob<Return, Arguments...> job(name, rows, tolerance);
  job.add("ours", ours).add("transcription", transcription);
  return job;
}

double between(std::mt19937& random, double low, double high) {
  return std::uniform_real_distribution(low, high)(random);
}

int32_t wholeBetween(std::mt19937& random, int32_t low, int32_t high) {
  return std::uniform_int_distribution(low, high)(random);
}

// Rows of one argument from `low` to `high`.
auto within(double low, double high) {
  return [=](std::mt19937& random) { return std::tuple{between(random, low, high)}; };
}

// Rows of two.
auto pairsWithin(double low, double high) {
  return [=](std::mt19937& random) {
    const double first = between(random, low, high);
    return std::tuple{first, between(random, low, high)};
  };
}

// One row, again and again.
template <typename... Arguments>
auto always(Arguments... arguments) {
  return [=](std::mt19937&) { return std::tuple{arguments...}; };
}

void addElementaryJobs() {
  addNumeric("sqr", sqr, transcribed::sqr, within(0, 100));
  addNumeric(
      "Log10", Log10, [](double x) { return std::log10(x); }, within(0.001, 1000));
  addNumeric(
      "spow", spow, [](double x, double y) { return std::pow(x, y); }, pairsWithin(0.1, 10));
  addNumeric("expm1x", expm1x, transcribed::expm1x, within(-5, 5), 1e-9)
      .add("std", [](double x) { return std::expm1(x); })
      .add("Boost", [](double x) { return boost::math::expm1(x); })
      .add("GSL", [](double x) { return gsl_sf_expm1(x); });
  addNumeric("ASin", ASin, transcribed::ASin, within(-1, 1)).add("std", [](double x) {
    return std::asin(x);
  });
  addNumeric("LogExpAPlusExpB", LogExpAPlusExpB, transcribed::LogExpAPlusExpB, pairsWithin(-20, 20),
             1e-9)
      .add("std", [](double a, double b) {
        return std::max(a, b) + std::log1p(std::exp(-std::fabs(a - b)));
      });
  addNumeric(
      "Min", Min, [](double a, double b) { return a < b ? a : b; }, pairsWithin(-1, 1));
  addNumeric(
      "Max", Max, [](double a, double b) { return a > b ? a : b; }, pairsWithin(-1, 1));
  addNumeric("FSgn", FSgn, transcribed::signOf, within(-1, 1));
  addNumeric(
      "FSign", FSign, [](double a, double b) { return b < 0.0 ? -std::fabs(a) : std::fabs(a); },
      pairsWithin(-1, 1));
}

void addCombinatoricJobs() {
  addNumeric("GammaLn", GammaLn, transcribed::GammaLn, within(3, 200))
      .add("std", [](double x) { return std::lgamma(x); })
      .add("Boost", [](double x) { return boost::math::lgamma(x); })
      .add("GSL", [](double x) { return gsl_sf_lngamma(x); });
  addNumeric("Fact", Fact, transcribed::Fact,
             [](std::mt19937& random) { return std::tuple{wholeBetween(random, 0, 170)}; })
      .add("Boost",
           [](int32_t n) { return boost::math::factorial<double>(static_cast<unsigned>(n)); })
      .add("GSL", [](int32_t n) { return gsl_sf_fact(static_cast<unsigned>(n)); });

  const auto ofBoost = [](double n, double k) {
    return boost::math::binomial_coefficient<double>(static_cast<unsigned>(n),
                                                     static_cast<unsigned>(k));
  };
  const auto ofGsl = [](double n, double k) {
    return gsl_sf_choose(static_cast<unsigned>(n), static_cast<unsigned>(k));
  };
  const auto coefficients = [](std::mt19937& random) {
    const int32_t n = wholeBetween(random, 0, 66);
    return std::tuple<double, double>{n, wholeBetween(random, 0, n)};
  };
  addNumeric("Cnk of n to 66", Cnk, transcribed::Cnk, coefficients)
      .add("Boost", ofBoost)
      .add("GSL", ofGsl);
  addNumeric("Cnk(52, 5)", Cnk, transcribed::Cnk, always(52.0, 5.0))
      .add("Boost", ofBoost)
      .add("GSL", ofGsl);
  addNumeric("Cnk(1000, 500)", Cnk, transcribed::Cnk, always(1000.0, 500.0), 1e-9)
      .add("Boost", ofBoost)
      .add("GSL", ofGsl);
  addNumeric("SumCnk(100, 0, 100)", SumCnk, transcribed::SumCnk, always(100.0, 0.0, 100.0))
      .add("Boost", [](double n, double from, double to) {
        double sum = 0;
        for (auto k = static_cast<unsigned>(from); k <= to; ++k) {
          sum += boost::math::binomial_coefficient<double>(static_cast<unsigned>(n), k);
        }
        return sum;
      });
}

void addDivisorJobs() {
  const auto wholes = [](int32_t end) {
    return [end](std::mt19937& random) {
      const int32_t a = wholeBetween(random, 1, end);
      return std::tuple{a, wholeBetween(random, 1, end)};
    };
  };
  const auto decimals = [](std::mt19937& random) {
    const double a = wholeBetween(random, 1, 99999) / 100.0;
    return std::tuple{a, wholeBetween(random, 1, 99999) / 100.0};
  };
  addNumeric("Mod", Mod, transcribed::Mod, wholes(1000000));
  addNumeric("ModDbl", ModDbl, transcribed::ModDbl, pairsWithin(1, 1000));
  addNumeric("LCD", LCD, transcribed::LCD, wholes(1000000))
      .add("std", [](int32_t a, int32_t b) { return std::gcd(a, b); })
      .add("Boost", [](int32_t a, int32_t b) { return boost::integer::gcd(a, b); });
  addNumeric("LCD2", LCD2, transcribed::LCD2, [wholes](std::mt19937& random) {
    const auto [a, b] = wholes(1000000)(random);
    return std::tuple<double, double>{a, b};
  });
  addNumeric("LCDDbl", LCDDbl, transcribed::LCDDbl, decimals);
  addNumeric("IsLong", IsLong, transcribed::IsLong, within(-10, 10));
  addNumeric("IsLongP", IsLongP, transcribed::IsLongP, pairsWithin(0, 1));
  addNumeric("IsEven", IsEven, transcribed::IsEven, within(-10, 10));
  addNumeric("IsEvenLng", IsEvenLng, transcribed::IsEvenLng,
             [](std::mt19937& random) { return std::tuple{wholeBetween(random, -9, 9)}; });
}

void addRoundingJobs() {
  const auto values = [](std::mt19937& random) { return std::tuple{between(random, -9, 9), -1}; };
  addNumeric("Int05", Int05, transcribed::Int05, values);
  addNumeric("Int05c", Int05c, transcribed::Int05c, values);
  addNumeric("Int05LU", Int05LU, transcribed::Int05LU, [](std::mt19937& random) {
    return std::tuple{between(random, -9, 9), -1, -1};
  });
}

template <auto routine>
double linear(double x1, double x2, double y1, double y2, double x) {
  double y = 0;
  routine(x1, x2, y1, y2, &x, &y, -1);
  return y;
}

template <auto routine>
double quadratic(double x1, double x2, double x3, double y1, double y2, double y3, double x) {
  double y = 0, second = 0;
  routine(x1, x2, x3, y1, y2, y3, &x, &second, &y, -1);
  return y;
}

void addInterpolationJobs() {
  addNumeric("LinearInterpol", linear<LinearInterpol>, linear<transcribed::LinearInterpol>,
             [](std::mt19937& random) {
               const double x1 = between(random, 0, 1), y1 = between(random, 0, 1),
                            y2 = between(random, 0, 1);
               return std::tuple{x1, x1 + 1, y1, y2, between(random, 0, 2)};
             });
  addNumeric(
      "QuadraticInterpol", quadratic<QuadraticInterpol>, quadratic<transcribed::QuadraticInterpol>,
      [](std::mt19937& random) {
        const double x1 = between(random, 1, 2), y1 = between(random, 0, 1);
        const double y2 = between(random, 0, 1), y3 = between(random, 0, 1);
        return std::tuple{x1, x1 + 1, x1 + 2, y1, y2, y3, between(random, 1, 4)};
      },
      1e-9)
      .add("GSL", [](double x1, double x2, double x3, double y1, double y2, double y3, double x) {
        const double xs[] = {x1, x2, x3}, ys[] = {y1, y2, y3};
        double differences[3];
        gsl_poly_dd_init(differences, xs, ys, 3);
        return gsl_poly_dd_eval(differences, xs, 3, x);
      });
}

}  // namespace

void addNumericJobs() {
  addElementaryJobs();
  addCombinatoricJobs();
  addDivisorJobs();
  addRoundingJobs();
  addInterpolationJobs();
}

}  // namespace benchmarks
