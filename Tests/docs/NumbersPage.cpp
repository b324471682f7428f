#include "docs/PageTable.h"

namespace {

std::string textOf(double value) {
  if (std::isnan(value)) return "NaN";
  if (std::isinf(value)) return value < 0 ? "-infinity" : "+infinity";
  char digits[32];
  std::snprintf(digits, sizeof digits, "%.15g", value);
  return digits;
}

}  // namespace

TEST(NumbersPage, RoundingToHalves) {
  std::vector<Cells> rows{{"v", "`Int05` half", "`Int05c` half", "`Int05LU` half, down",
                           "`Int05LU` half, up", "`Int05`", "`Int05c`", "`Int05LU` down",
                           "`Int05LU` up"}};
  for (const double v : {2.0, 2.1, 2.25, 2.4, 2.5, 2.6, 2.75, 2.9, -2.1, -2.25, -2.5, -2.6}) {
    rows.push_back({textOf(v)});
    for (const HostBool half : {-1, 0}) {
      for (const double rounded :
           {Int05(v, half), Int05c(v, half), Int05LU(v, half, -1), Int05LU(v, half, 0)}) {
        rows.back().push_back(textOf(rounded));
      }
    }
  }
  expectTable("numbers.md", rows);
}

TEST(NumbersPage, ArgumentsAtTheEdge) {
  std::vector<Cells> rows{{"Routine"}};
  const double arguments[] = {-kInf, -10, -0.0, 0.0, 1000, kInf, kNaN};
  for (const double x : arguments) rows.front().push_back(textOf(x));
  const auto add = [&](const char* name, auto routine) {
    rows.push_back({name});
    for (const double x : arguments) rows.back().push_back(textOf(routine(x)));
  };
#define ADD(routine, ...) add("`" #routine "`", [](double x) { return routine(__VA_ARGS__); })
  ADD(sqr, x), ADD(Log10, x), ADD(expm1x, x), ADD(ASin, x), ADD(FSgn, x), ADD(GammaLn, x);
  ADD(Int05, x, -1), ADD(Int05c, x, -1), ADD(Int05LU, x, -1, -1), ADD(IsLong, x), ADD(IsEven, x);
  expectTable("numbers.md", rows);
}
