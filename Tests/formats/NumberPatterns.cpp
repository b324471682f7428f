#include "support/SmallScopes.h"

TEST(SetFormat, WritesTheFirstElements) {
  const std::vector<int32_t> counts{kLowest, -1, 0, 1, 2, 8}, digits{kLowest, -2, -1, 0, 1, 2, 4};
  const auto check = [](int32_t count, int32_t number, int32_t digitsOverride) {
    SCOPED_TRACE(showCall("SetFormat", count, number, digitsOverride));
    const int32_t used = digitsOverride == -1 ? number : digitsOverride;
    const Text pattern = reference::DecimalFormat(used < 1 ? 0 : used - 1);
    Texts wide(8, L"old"), expected = wide;
    std::vector<BSTR> host(8);
    SetFormat(wide.data(), count, number, digitsOverride);
    VB_SetFormat(host.data(), count, number, digitsOverride);
    std::fill_n(expected.begin(), count, pattern);
    EXPECT_EQ(wide, expected);
    for (std::size_t i = 0; i < host.size(); ++i) {
      EXPECT_EQ(take(host[i]), static_cast<int32_t>(i) < count ? pattern : kNullHandle) << i;
    }
  };
  forEach(check, counts, digits, digits);
}

// Where the patterns change: at integers and near them, and at powers of ten.
TEST(OptimalFormat, AndOutputFormatAtEveryEdge) {
  std::vector<double> values{kTiny, kExtreme, kInf, kNaN, 1.0 / 3};
  const auto add = [&values](double x) {
    for (const double y : {below(x), x, above(x)}) values.insert(values.end(), {y, -y});
  };
  for (const double integer : {0.0, 1.0, 5.0, 15.0, 0x1p31 - 1, 0x1p31, 0x1p53}) {
    for (const double offset : {0.0, 1e-13, 1e-12, 2e-12, 0.05, 0.5})
      add(integer + offset), add(integer - offset);
  }
  for (int exponent = -40; exponent <= 25; ++exponent) {
    for (const double digits : {1.0, 1.2, 3.0, 9.99}) add(digits * std::pow(10.0, exponent));
  }
  std::vector<int32_t> decimals{kLowest, -11, 40};
  for (int32_t n = -2; n <= 13; ++n) decimals.push_back(n);
  const std::vector<HostBool> flags{0, -1};
  EXPECT_SAME(OutputFormat, reference::OutputFormat, values);
  EXPECT_SAME(OptimalFormat, reference::OptimalFormat, values, decimals, flags, flags);
}
