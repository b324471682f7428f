// The loader finds the mathematical functions of this program first, so that it sees which of them
// each routine calls.
#include <dlfcn.h>

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
  std::vector<Cells> rows{{"Routine", "Functions of the platform"}};
  Cells none;
  double y = 0.4, second = 0.0;
  const auto add = [&](const char* name, auto call) {
    calls().clear();
    for (const double x : {0.5, 3.0, 100.0, 1000.0, 0.001}) call(x, static_cast<int32_t>(x));
    if (calls().empty()) {
      none.push_back(name);
    } else {
      rows.push_back({name, listOf({calls().begin(), calls().end()})});
    }
  };
#define ADD(routine, ...) \
  add("`" #routine "`",   \
      [&]([[maybe_unused]] double x, [[maybe_unused]] int32_t i) { routine(__VA_ARGS__); })
  ADD(Pi), ADD(sqr, x), ADD(Log10, x), ADD(spow, x, 2), ADD(expm1x, x), ADD(ASin, x);
  ADD(Min, x, 1), ADD(Max, x, 1), ADD(FSgn, x), ADD(FSign, x, -1), ADD(LogExpAPlusExpB, x, 1);
  ADD(GammaLn, x), ADD(Fact, i), ADD(Cnk, x, 3), ADD(SumCnk, x, 0, 90), ADD(Mod, i, 3);
  ADD(ModDbl, x, 3), ADD(LCD, i, 6), ADD(LCD2, x, 6), ADD(LCDDbl, x, 0.25), ADD(IsLong, x);
  ADD(IsLongP, x, 0.25), ADD(IsEven, x), ADD(IsEvenLng, i), ADD(Int05, x, -1);
  ADD(Int05c, x, -1), ADD(Int05LU, x, -1, -1), ADD(LinearInterpol, 1, x, 2, 3, &second, &y, 0);
  ADD(QuadraticInterpol, 1, x, 7, 3, 9, 4, &second, &second, &y, 0), ADD(OutputFormat, x);
  ADD(OptimalFormat, x, 2, -1, 0);
  rows.push_back({listOf(none), "none"});
  expectTable("numbers.md", rows);
}
