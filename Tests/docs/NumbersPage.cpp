#include <cmath>

#include "docs/PageTable.h"

namespace {

const std::string kPage = "numbers.md";
constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::string textOf(double value) {
  if (std::isnan(value)) return "NaN";
  if (std::isinf(value)) return value < 0 ? "-infinity" : "+infinity";
  char digits[32];
  std::snprintf(digits, sizeof digits, "%.15g", value);
  return digits;
}

}  // namespace

TEST(NumbersPage, RoundingToHalves) {
  std::vector<Cells> rows;
  for (const double v : {2.0, 2.1, 2.25, 2.4, 2.5, 2.6, 2.75, 2.9, -2.1, -2.25, -2.5, -2.6}) {
    Cells cells{textOf(v)};
    for (const HostBool half : {-1, 0}) {
      for (const double rounded :
           {Int05(v, half), Int05c(v, half), Int05LU(v, half, -1), Int05LU(v, half, 0)}) {
        cells.push_back(textOf(rounded));
      }
    }
    rows.push_back(cells);
  }
  expectTable(kPage,
              {"v", "`Int05` half", "`Int05c` half", "`Int05LU` half, down", "`Int05LU` half, up",
               "`Int05`", "`Int05c`", "`Int05LU` down", "`Int05LU` up"},
              rows);
}

TEST(NumbersPage, ArgumentsAtTheEdge) {
  const std::vector<std::pair<std::string, double (*)(double)>> routines{
      {"sqr", [](double x) { return sqr(x); }},
      {"Log10", [](double x) { return Log10(x); }},
      {"expm1x", [](double x) { return expm1x(x); }},
      {"ASin", [](double x) { return ASin(x); }},
      {"FSgn", [](double x) { return FSgn(x); }},
      {"GammaLn", [](double x) { return GammaLn(x); }},
      {"Int05", [](double x) { return Int05(x, -1); }},
      {"Int05c", [](double x) { return Int05c(x, -1); }},
      {"Int05LU", [](double x) { return Int05LU(x, -1, -1); }},
      {"IsLong", [](double x) -> double { return IsLong(x); }},
      {"IsEven", [](double x) -> double { return IsEven(x); }}};
  const std::vector<double> arguments{-kInfinity, -10, -0.0, 0.0, 1000, kInfinity, std::nan("")};
  Cells titles{"Routine"};
  for (const double x : arguments) titles.push_back(textOf(x));
  std::vector<Cells> rows;
  for (const auto& [name, routine] : routines) {
    rows.push_back({"`" + name + "`"});
    for (const double x : arguments) rows.back().push_back(textOf(routine(x)));
  }
  expectTable(kPage, titles, rows);
}
