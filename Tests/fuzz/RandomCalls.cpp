// The checks of the fuzz targets on random calls, the same in every run; a test for each routine.
#include <map>

#include "fuzz/Checks.h"

namespace {

void expectAll(const Checks& checks) {
  Random random;
  for (int i = 0; i < 3000; ++i) ASSERT_TRUE(checkAny(checks, random)) << "in call " << i;
}

[[maybe_unused]] const bool areAdded = [] {
  std::map<std::string, Checks> checksOf;
  for (const Checks& checks :
       {checksOfHostRoutines(), checksOfWideRoutines(), checksOfFormats(), checksOfNumerics()}) {
    for (const Check& check : checks) checksOf[check.routine].push_back(check);
  }
  for (const auto& [routine, checks] : checksOf) {
    addTest(routine, "RandomCalls", [c = checks] { expectAll(c); });
  }
  return true;
}();

}  // namespace
