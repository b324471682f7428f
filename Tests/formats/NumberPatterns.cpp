#include "fuzz/Checks.h"
#include "support/SmallScopes.h"

TEST(NumberPatterns, Decimals) {
  auto decimals = integersNear(100);
  std::erase_if(decimals, [](int32_t n) { return n > 100; });
  EXPECT_SAME(DecimalFormat, stepwise::DecimalFormat, decimals);
  EXPECT_SAME(Cpp_DecimalFormat, stepwise::DecimalFormat, decimals);
}

TEST(NumberPatterns, ByDigitsIntoAnArray) {
  const std::vector<int32_t> counts{kLowest, -1, 0, 1, 2, 8}, digits{kLowest, -2, -1, 0, 1, 2, 4};
  forEach([](auto... numbers) { EXPECT_TRUE(checkFormatsOf(numbers...)); }, counts, digits, digits);
}

// Where the patterns change: whole numbers and what is close to them, and powers of ten.
TEST(NumberPatterns, AtEveryEdge) {
  std::vector<double> values{kTiny, kExtreme, kInf, kNaN, 1.0 / 3};
  const auto add = [&values](double x) {
    for (const double y : {below(x), x, above(x)}) values.insert(values.end(), {y, -y});
  };
  for (const double whole : {0.0, 1.0, 5.0, 15.0, 0x1p31 - 1, 0x1p31, 0x1p53}) {
    for (const double off : {0.0, 1e-13, 1e-12, 2e-12, 0.05, 0.5})
      add(whole + off), add(whole - off);
  }
  for (int exponent = -40; exponent <= 25; ++exponent) {
    for (const double digits : {1.0, 1.2, 3.0, 9.99}) add(digits * std::pow(10.0, exponent));
  }
  std::vector<int32_t> limits{kLowest, -11, 40};
  for (int32_t decimals = -2; decimals <= 13; ++decimals) limits.push_back(decimals);
  const std::vector<HostBool> flags{0, -1};
  EXPECT_SAME(OutputFormat, stepwise::OutputFormat, values);
  EXPECT_SAME(OptimalFormat, stepwise::OptimalFormat, values, limits, flags, flags);
}
