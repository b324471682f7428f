#include "PatternPrinter.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace {

TEST(PatternPrinter, Rows) {
  struct Row {
    double value;
    std::string pattern, expected;
  };
  const std::string all = "0.###################";
  const std::vector<Row> rows{
      {0, "0", "0"},
      {41.7, "0", "42"},
      {2.5, "0.000", "2.500"},
      {-2.0625, "0.00", "-2.06"},
      {2.5, all, "2.5"},
      {-1.0 / 3, all, "-0.333333333333333"},
      {0.1, all, "0.1"},
      {1e-5, all, "0.00001"},
      {100, all, "100"},
      {123456, "0E+0", "1E+5"},
      {123456, "0.000E+0", "1.235E+5"},
      {-0.00009, "0.000E-0", "-9.000E-5"},
      {5e-11, "0.0E-00", "5.0E-11"},
      {1.5e10, "0.0E-0", "1.5E10"},
      {12345678901.5, "0.00E+00", "1.23E+10"},
      {2e-5, "0.0E-00", "2.0E-05"},
      {3e-5, all + "E-#", "3E-5"},
      {std::numeric_limits<double>::infinity(), "0.0E+0", "inf"},
  };
  for (const Row& row : rows) EXPECT_EQ(printed(row.value, row.pattern), row.expected);
}

}  // namespace
