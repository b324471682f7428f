#include "PatternPrinter.h"

#include <gtest/gtest.h>

#include "support/Doubles.h"

TEST(PatternPrinter, Rows) {
  const std::string all = "0.###################";
  using Row = std::tuple<double, std::string, std::string>;
  for (const auto& [value, pattern, expected] :
       {Row(0, "0", "0"), Row(41.7, "0", "42"), Row(2.5, "0.000", "2.500"), Row(2.5, all, "2.5"),
        Row(-2.0625, "0.00", "-2.06"), Row(-1.0 / 3, all, "-0.333333333333333"),
        Row(1e-5, all, "0.00001"), Row(0.1, all, "0.1"), Row(100, all, "100"),
        Row(2e-5, "0.0E-00", "2.0E-05"), Row(123456, "0E+0", "1E+5"),
        Row(123456, "0.000E+0", "1.235E+5"), Row(-0.00009, "0.000E-0", "-9.000E-5"),
        Row(1.5e10, "0.0E-0", "1.5E10"), Row(12345678901.5, "0.00E+00", "1.23E+10"),
        Row(3e-5, all + "E-#", "3E-5"), Row(kInf, "0.0E+0", "inf")}) {
    EXPECT_EQ(formatNumber(value, pattern), expected) << value << " as " << pattern;
  }
}
