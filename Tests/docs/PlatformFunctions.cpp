// The loader finds the mathematical functions of this program first, so that it sees which of them
// each routine calls.
#include <dlfcn.h>

#include <functional>
#include <set>

#include "docs/PageTable.h"

namespace {

// The names of the functions called. Made at its first use, which may be before main.
std::set<std::string>& calls() {
  static std::set<std::string> names;
  return names;
}

template <typename... Arguments>
double passOn(const char* name, Arguments... arguments) {
  calls().insert(std::string("`") + name + "`");
  const auto function = reinterpret_cast<double (*)(Arguments...)>(dlsym(RTLD_NEXT, name));
  return function(arguments...);
}

}  // namespace

#define PASS_ON __attribute__((visibility("default"))) double
extern "C" {
PASS_ON atan(double x) noexcept { return passOn("atan", x); }
PASS_ON exp(double x) noexcept { return passOn("exp", x); }
PASS_ON log(double x) noexcept { return passOn("log", x); }
PASS_ON log10(double x) noexcept { return passOn("log10", x); }
PASS_ON pow(double x, double y) noexcept { return passOn("pow", x, y); }
}

TEST(NumbersPage, FunctionsOfThePlatform) {
  double x = 0.3, xSecond = 0.0, y = 0.4;
  const std::vector<std::pair<std::string, std::function<void(double)>>> routines{
      {"Pi", [](double) { Pi(); }},
      {"sqr", [](double a) { sqr(a); }},
      {"Log10", [](double a) { Log10(a); }},
      {"spow", [](double a) { spow(a, 2); }},
      {"expm1x", [](double a) { expm1x(a); }},
      {"ASin", [](double a) { ASin(a); }},
      {"Min", [](double a) { Min(a, 1); }},
      {"Max", [](double a) { Max(a, 1); }},
      {"FSgn", [](double a) { FSgn(a); }},
      {"FSign", [](double a) { FSign(a, -1); }},
      {"LogExpAPlusExpB", [](double a) { LogExpAPlusExpB(a, 1); }},
      {"GammaLn", [](double a) { GammaLn(a); }},
      {"Fact", [](double a) { Fact(int32_t(a)); }},
      {"Cnk", [](double a) { Cnk(a, 3); }},
      {"SumCnk", [](double a) { SumCnk(a, 0, 90); }},
      {"Mod", [](double a) { Mod(int32_t(a), 3); }},
      {"ModDbl", [](double a) { ModDbl(a, 3); }},
      {"LCD", [](double a) { LCD(int32_t(a), 6); }},
      {"LCD2", [](double a) { LCD2(a, 6); }},
      {"LCDDbl", [](double a) { LCDDbl(a, 0.25); }},
      {"IsLong", [](double a) { IsLong(a); }},
      {"IsLongP", [](double a) { IsLongP(a, 0.25); }},
      {"IsEven", [](double a) { IsEven(a); }},
      {"IsEvenLng", [](double a) { IsEvenLng(int32_t(a)); }},
      {"Int05", [](double a) { Int05(a, -1); }},
      {"Int05c", [](double a) { Int05c(a, -1); }},
      {"Int05LU", [](double a) { Int05LU(a, -1, -1); }},
      {"LinearInterpol", [&](double a) { LinearInterpol(1, a, 2, 3, &x, &y, 0); }},
      {"QuadraticInterpol",
       [&](double a) { QuadraticInterpol(1, a, 7, 3, 9, 4, &x, &xSecond, &y, 0); }},
      {"OutputFormat", [](double a) { OutputFormat(a); }},
      {"OptimalFormat", [](double a) { OptimalFormat(a, 2, -1, 0); }},
  };
  std::vector<Cells> rows;
  Cells none;
  for (const auto& [name, call] : routines) {
    calls().clear();
    for (const double a : {0.5, 3.0, 100.0, 1000.0, 0.001}) call(a);
    if (calls().empty()) {
      none.push_back("`" + name + "`");
    } else {
      rows.push_back({"`" + name + "`", listOf({calls().begin(), calls().end()})});
    }
  }
  rows.push_back({listOf(none), "none"});
  expectTable("numbers.md", {"Routine", "Functions of the platform"}, rows);
}
