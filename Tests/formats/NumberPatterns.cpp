#include <vector>

#include "support/Expectations.h"

TEST(NumberPatterns, NoDecimals) {
  for (const int32_t decimals : {kLowest, -1, 0}) EXPECT_GIVES(DecimalFormat, L"0", decimals);
}

TEST(NumberPatterns, ByDigitsIntoAnArray) {
  for (const auto& [digits, digitsOverride, pattern] :
       {row(4, -1, L"0.000"), row(2, -1, L"0.0"), row(1, -1, L"0"), row(0, -1, L"0"),
        row(-5, -1, L"0"), row(kLowest, -1, L"0"), row(4, 2, L"0.0"), row(4, 1, L"0"),
        row(4, 0, L"0"), row(4, -2, L"0"), row(4, kLowest, L"0"), row(-1, 3, L"0.00")}) {
    for (const int32_t count : {kLowest, -1, 0, 1, 2, 3}) {
      Text wide[] = {L"stays", L"stays", L"stays", L"stays"};
      SetFormat(wide, count, digits, digitsOverride);
      BSTR host[4] = {};
      VB_SetFormat(host, count, digits, digitsOverride);
      for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(wide[i], i < count ? pattern : L"stays")
            << "element " << i << " after "
            << shownCall("SetFormat", count, digits, digitsOverride);
        EXPECT_EQ(taken(host[i]), i < count ? pattern : kNullHandle)
            << "element " << i << " after "
            << shownCall("VB_SetFormat", count, digits, digitsOverride);
      }
    }
  }
}

TEST(NumberPatterns, Output) {
  const Text decimals = L"0.###################";
  using Row = std::tuple<std::vector<double>, Text>;
  for (const auto& [values, pattern] :
       {Row({0.0, 1.0, 1.0000000000001, 3.9999999999999, 1e300, kInf, kNaN}, L"0"),
        Row({1e-12, 1e-15, 3e-19, 1e-32}, L"0"), Row({1e-20, 3.3e-19, 1e-31}, L"0E-#"),
        Row({2.5, 1.0 / 3, 0.0004, 1.00000000001, 0.99999999999, 1.2345678901234e-5}, decimals),
        Row({0.0003, 1e-5, above(1e-12)}, decimals + L"E-#")}) {
    for (const double value : values) {
      EXPECT_GIVES(OutputFormat, pattern, value);
      EXPECT_GIVES(OutputFormat, pattern, -value);
    }
  }
}

TEST(NumberPatterns, Optimal) {
  // The patterns with keepDecimals set, and not set.
  using Row = std::tuple<std::vector<double>, int32_t, HostBool, Text, Text>;
  for (const auto& [values, decimals, useExponent, kept, unkept] :
       {Row({0.0, 5.0, 5.0000000000001, below(1e-12)}, 3, -1, L"0", L"0"),
        Row({0.1, 0.0009, 4.9999999999999, 99999.5, 1e-12, kInf, kNaN}, 3, -1, L"0.000", L"0.000"),
        Row({1.5e-10, 0.00009}, 3, -1, L"0.000E-0", L"0.000E-0"),
        Row({0.0001}, 3, -1, L"0.000E-0", L"0E-0"), Row({1e-10}, 3, -1, L"0.000E-00", L"0E-00"),
        Row({1.1e-12, 5e-11}, 3, -1, L"0.000E-00", L"0.000E-00"),
        Row({1e5, 123456.0, 2147483647.0}, 3, -1, L"0E+0", L"0E+0"),
        Row({100000.5, 2147483649.0, 9999999999.5}, 3, -1, L"0.000E+0", L"0.000E+0"),
        Row({3e9}, 3, -1, L"0.000E+0", L"0E+0"), Row({1e10, 7e20}, 3, -1, L"0.000E+00", L"0E+00"),
        Row({0.0011, 2.5}, 2, -1, L"0.00", L"0.00"), Row({0.00099}, 2, -1, L"0.00E-0", L"0.00E-0"),
        Row({15.5}, -1, -1, L"0", L"0"), Row({15.5}, -2, -1, L"0E-0", L"0E-0"),
        Row({15.5, 0.05}, kLowest, -1, L"0E-0", L"0E-0"), Row({0.05}, 0, -1, L"0E-0", L"0E-0"),
        Row({12345.6, 1e20, 1e-5, 3e9}, 1, 0, L"0.0", L"0.0")}) {
    for (const double value : values) {
      for (const double x : {value, -value}) {
        EXPECT_GIVES(OptimalFormat, kept, x, decimals, useExponent, -1);
        EXPECT_GIVES(OptimalFormat, unkept, x, decimals, useExponent, 0);
      }
    }
  }
  EXPECT_GIVES(OptimalFormat, L"0", -2147483648.0, 1, 0, 0);
  EXPECT_GIVES(OptimalFormat, L"0.0", 2147483648.0, 1, 0, 0);
}
