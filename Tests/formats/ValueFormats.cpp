#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include "support/HostStrings.h"

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();

TEST(ValueFormats, Output) {
  const std::wstring whole = L"0", decimals = L"0.###################";
  const std::wstring scaled = L"E-#";
  struct Row {
    double value;
    std::wstring pattern;
  };
  const std::vector<Row> rows{
      {0.0, whole},
      {-0.0, whole},
      {1.0, whole},
      {-3.0, whole},
      {2.5, decimals},
      {1.0 / 3, decimals},
      {0.0004, decimals},
      {1.0000000000001, whole},
      {3.9999999999999, whole},
      {1.00000000001, decimals},
      {0.99999999999, decimals},
      {0.0003, decimals + scaled},
      {1e-5, decimals + scaled},
      {1.2345678901234e-5, decimals},
      {1e-12, whole},
      {std::nextafter(1e-12, 1.0), decimals + scaled},
      {1e-15, whole},
      {1e-19, whole},
      {3e-19, whole},
      {1e-20, whole + scaled},
      {3.3e-19, whole + scaled},
      {1e-31, whole + scaled},
      {1e-32, whole},
      {1e300, whole},
      {kInfinity, whole},
      {-kInfinity, whole},
      {kNaN, whole},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.value);
    EXPECT_EQ(OutputFormat(row.value), row.pattern);
    EXPECT_EQ(OutputFormat(-row.value), row.pattern);
    EXPECT_EQ(taken(VB_OutputFormat(row.value)), row.pattern);
  }
}

struct Row {
  double value;
  std::int32_t decimals;
  HostBool useExponent;
  std::wstring kept;    // the pattern with keepDecimals set
  std::wstring unkept;  // and not set
};

TEST(ValueFormats, Optimal) {
  const std::vector<Row> rows{
      {0.0, 3, -1, L"0", L"0"},
      {5.0, 3, -1, L"0", L"0"},
      {2.5, 3, 0, L"0.000", L"0.000"},
      {2.5, 2, -1, L"0.00", L"0.00"},
      {5.0000000000001, 3, 0, L"0", L"0"},
      {4.9999999999999, 3, 0, L"0.000", L"0.000"},
      {0.5, 3, -1, L"0.000", L"0.000"},
      {0.1, 3, -1, L"0.000", L"0.000"},
      {0.0011, 2, -1, L"0.00", L"0.00"},
      {0.00099, 2, -1, L"0.00E-0", L"0.00E-0"},
      {0.0009, 3, -1, L"0.000", L"0.000"},
      {0.0001, 3, -1, L"0.000E-0", L"0E-0"},
      {0.00009, 3, -1, L"0.000E-0", L"0.000E-0"},
      {1.5e-10, 3, -1, L"0.000E-0", L"0.000E-0"},
      {5e-11, 3, -1, L"0.000E-00", L"0.000E-00"},
      {1e-10, 3, -1, L"0.000E-00", L"0E-00"},
      {99999.5, 3, -1, L"0.000", L"0.000"},
      {100000.5, 3, -1, L"0.000E+0", L"0.000E+0"},
      {100000.0, 3, -1, L"0E+0", L"0E+0"},
      {123456.0, 3, -1, L"0E+0", L"0E+0"},
      {2147483647.0, 3, -1, L"0E+0", L"0E+0"},
      {2147483649.0, 3, -1, L"0.000E+0", L"0.000E+0"},
      {3000000000.0, 3, -1, L"0.000E+0", L"0E+0"},
      {9999999999.5, 3, -1, L"0.000E+0", L"0.000E+0"},
      {10000000000.0, 3, -1, L"0.000E+00", L"0E+00"},
      {12345678901.5, 2, -1, L"0.00E+00", L"0.00E+00"},
      {7e20, 1, -1, L"0.0E+00", L"0E+00"},
      {1e-12, 3, -1, L"0.000", L"0.000"},
      {std::nextafter(1e-12, 0.0), 3, -1, L"0", L"0"},
      {1.1e-12, 3, -1, L"0.000E-00", L"0.000E-00"},
      {1e-13, 3, -1, L"0", L"0"},
      {0.05, 0, -1, L"0E-0", L"0E-0"},
      {15.5, -2, -1, L"0E-0", L"0E-0"},
      {15.5, -1, -1, L"0", L"0"},
      {15.5, kLowest, -1, L"0E-0", L"0E-0"},
      {1e-11, kLowest + 1, -1, L"0E-00", L"0E-00"},
      {12345.678, 3, 0, L"0.000", L"0.000"},
      {1e20, 3, 0, L"0.000", L"0.000"},
      {1e-5, 3, 0x10000, L"0.000", L"0.000"},
      {1e-5, 3, 0x18000, L"0.000E-0", L"0E-0"},
      {1e-5, 3, 1, L"0.000E-0", L"0E-0"},
      {kInfinity, 3, -1, L"0.000", L"0.000"},
  };
  for (const Row& row : rows) {
    for (const double value : {row.value, -row.value}) {
      SCOPED_TRACE(::testing::PrintToString(std::pair(value, row.decimals)));
      EXPECT_EQ(OptimalFormat(value, row.decimals, row.useExponent, -1), row.kept);
      EXPECT_EQ(OptimalFormat(value, row.decimals, row.useExponent, 0x18000), row.kept);
      EXPECT_EQ(OptimalFormat(value, row.decimals, row.useExponent, 0), row.unkept);
      EXPECT_EQ(OptimalFormat(value, row.decimals, row.useExponent, 0x10000), row.unkept);
      EXPECT_EQ(taken(VB_OptimalFormat(value, row.decimals, row.useExponent, 0)), row.unkept);
      EXPECT_EQ(taken(VB_OptimalFormat(value, row.decimals, row.useExponent, 1)), row.kept);
    }
  }
  EXPECT_EQ(OptimalFormat(kNaN, 3, -1, 0), L"0.000");
  EXPECT_EQ(OptimalFormat(1e-9, 20, -1, -1), L"0." + std::wstring(20, L'0'));
}

TEST(ValueFormats, WholeIsWithin32Bits) {
  struct Whole {
    double value;
    bool whole;
  };
  const std::vector<Whole> rows{
      {-2147483648.0, true},    {-2147483649.0, false}, {-2147483648.5, false},
      {2147483647.5, false},    {2147483648.0, false},  {1.0000000000009, true},
      {1.0000000000011, false}, {-7.0, true},           {4294967296.0, false},
      {1e300, false},
  };
  for (const Whole& row : rows) {
    EXPECT_EQ(OptimalFormat(row.value, 1, 0, -1), row.whole ? L"0" : L"0.0") << row.value;
  }
}

}  // namespace
