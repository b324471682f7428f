#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <vector>

#include "support/HostStrings.h"

namespace {

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();

TEST(DecimalFormats, ByDecimals) {
  struct Row {
    std::int32_t decimals;
    std::wstring pattern;
  };
  const std::vector<Row> rows{{kLowest, L"0"},
                              {-1, L"0"},
                              {0, L"0"},
                              {1, L"0.0"},
                              {2, L"0.00"},
                              {3, L"0.000"},
                              {1000, L"0." + std::wstring(1000, L'0')}};
  for (const Row& row : rows) {
    EXPECT_EQ(DecimalFormat(row.decimals), row.pattern);
    EXPECT_EQ(taken(Cpp_DecimalFormat(row.decimals)), row.pattern);
  }
}

TEST(DecimalFormats, ByDigitsIntoAnArray) {
  struct Row {
    std::int32_t digits, digitsOverride;
    std::wstring pattern;
  };
  const std::vector<Row> rows{
      {4, -1, L"0.000"},   {1, -1, L"0"},      {0, -1, L"0"},   {-5, -1, L"0"},
      {4, 2, L"0.0"},      {4, 0, L"0"},       {4, -2, L"0"},   {4, 1, L"0"},
      {kLowest, -1, L"0"}, {4, kLowest, L"0"}, {2, -1, L"0.0"}, {-1, 3, L"0.00"},
  };
  for (const Row& row : rows) {
    std::wstring wide[] = {L"x", L"x", L"x", L"stays"};
    SetFormat(wide, 3, row.digits, row.digitsOverride);
    BSTR host[4] = {};
    VB_SetFormat(host, 3, row.digits, row.digitsOverride);
    EXPECT_NE(host[0], host[1]);
    for (int i = 0; i < 3; ++i) {
      EXPECT_EQ(wide[i], row.pattern);
      EXPECT_EQ(taken(host[i]), row.pattern);
    }
    EXPECT_EQ(wide[3], L"stays");
    EXPECT_EQ(host[3], nullptr);
  }
}

TEST(DecimalFormats, CountBelowOneWritesNothing) {
  for (const std::int32_t count : {0, -1, kLowest}) {
    std::wstring wide[] = {L"stays"};
    SetFormat(wide, count, 4, -1);
    EXPECT_EQ(wide[0], L"stays");
    BSTR host[1] = {};
    VB_SetFormat(host, count, 4, -1);
    EXPECT_EQ(host[0], nullptr);
  }
  std::wstring one[] = {L"x"};
  SetFormat(one, 1, 2, -1);
  EXPECT_EQ(one[0], L"0.0");
}

}  // namespace
