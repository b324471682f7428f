// Numeric routines compared with their reference, which uses the plain method and returns the same bits,
// and with other libraries.
#include <boost/math/special_functions.hpp>
#include <cmath>
#include <numeric>
#include <tuple>

#include "Jobs.h"
#include "support/NumericReferences.h"

namespace benchmarks {
namespace {

template <typename... Arguments>
using Rows = std::vector<std::tuple<Arguments...>>;

// A job that calls each contestant with each row of arguments.
template <typename Return, typename... Arguments>
class NumericJob {
 public:
  using Function = Return (*)(Arguments...);

  NumericJob(const char* name, Function ours, const Rows<Arguments...>& rows, double tolerance = 0)
      : job_(addJob("numerics", name)), rows_(rows) {
    job_.tolerance = tolerance;
    add("ours", ours);
  }

  NumericJob& add(const char* contestant, Function function) {
    const auto work = [rows = rows_, function, results = Result(rows_.size())]() mutable {
      for (std::size_t i = 0; i < rows.size(); ++i) {
        results[i] = static_cast<double>(std::apply(function, rows[i]));
      }
      return std::span(results);
    };
    job_.add(contestant, work, static_cast<double>(rows_.size()));
    return *this;
  }

 private:
  Job& job_;
  Rows<Arguments...> rows_;
};

// Returns 256 rows of random arguments.
auto rowsOf(auto make) {
  std::mt19937 random(1);
  std::vector<decltype(make(random))> rows(256);
  for (auto& row : rows) row = make(random);
  return rows;
}

int32_t between(std::mt19937& random, int32_t low, int32_t high) {
  return std::uniform_int_distribution(low, high)(random);
}

double boostChoose(double n, double k) {
  return boost::math::binomial_coefficient<double>(static_cast<unsigned>(n),
                                                   static_cast<unsigned>(k));
}

void addCombinatorics() {
  const auto numbers = rowsOf([](auto& random) { return std::tuple{between(random, 0, 170)}; });
  NumericJob("Fact", Fact, numbers, 1e-12).add("Boost", [](int32_t n) {
    return boost::math::factorial<double>(static_cast<unsigned>(n));
  });

  const auto coefficients = rowsOf([](auto& random) {
    const int32_t n = between(random, 0, 66);
    return std::tuple<double, double>{n, between(random, 0, n)};
  });
  const auto addChoose = [](const char* name, const Rows<double, double>& rows) {
    NumericJob(name, Cnk, rows, 1e-9).add("reference", reference::Cnk).add("Boost", boostChoose);
  };
  addChoose("Cnk, n up to 66", coefficients);
  addChoose("Cnk(100, 50)", {{100, 50}});
  addChoose("Cnk(1000, 500)", {{1000, 500}});
  const auto addSum = [](const char* name, double n) {
    NumericJob(name, SumCnk, {{n, 0.0, n}}).add("reference", reference::SumCnk);
  };
  addSum("SumCnk(100, 0, 100)", 100);
  addSum("SumCnk(1000, 0, 1000)", 1000);
}

void addDivisors() {
  const auto integers = rowsOf([](auto& random) {
    const int32_t a = between(random, 1, 1000000);
    return std::tuple{a, between(random, 1, 1000000)};
  });
  NumericJob("Mod", Mod, integers).add("reference", reference::Mod);
  NumericJob("LCD", LCD, integers)
      .add("reference", reference::LCD)
      .add("std", [](int32_t a, int32_t b) { return std::gcd(a, b); });
}

void addGamma() {
  const auto arguments = rowsOf(
      [](auto& random) { return std::tuple{std::uniform_real_distribution(3.0, 200.0)(random)}; });
  NumericJob("GammaLn", GammaLn, arguments, 1e-12)
      .add("std", [](double x) { return std::lgamma(x); })
      .add("Boost", [](double x) { return boost::math::lgamma(x); });
}

}  // namespace

void addNumericJobs() {
  addCombinatorics();
  addDivisors();
  addGamma();
}

}  // namespace benchmarks
