// The checks of the fuzz targets on random arguments, the same in every run. Each routine has a test.
#include <map>

#include "fuzz/Checks.h"

namespace {

constexpr int kCalls = 5000;

void expectAll(const Checks& checks) {
  Random random;
  for (int i = 0; i < kCalls; ++i) ASSERT_TRUE(checkAny(checks, random)) << "in call " << i;
}

[[maybe_unused]] const bool areAdded = [] {
  std::map<std::string, Checks> checksOf;
  for (const Checks& checks : {checksOfTexts(), checksOfNumerics()}) {
    for (const Check& check : checks) checksOf[check.routine].push_back(check);
  }
  for (const auto& [routine, checks] : checksOf) {
    addTest(routine, "RandomCalls", [c = checks] { expectAll(c); });
  }
  return true;
}();

}  // namespace
