#include "fuzz/Checks.h"

testing::AssertionResult checkFormatsOf(int32_t count, int32_t digits, int32_t digitsOverride) {
  constexpr std::size_t kSize = 8;
  const int32_t used = digitsOverride == -1 ? digits : digitsOverride;
  const Text pattern = stepwise::DecimalFormat(used < 1 ? 0 : used - 1);
  const auto call = [&] { return showCall("SetFormat", count, digits, digitsOverride); };
  Texts wide(kSize, L"stays"), host, expectedWide = wide, expectedHost(kSize, kNullHandle);
  for (Texts* const expected : {&expectedWide, &expectedHost}) {
    std::fill_n(expected->begin(), std::min<int32_t>(count, kSize), pattern);
  }
  BSTR handles[kSize] = {};
  named(call, [&] {
    SetFormat(wide.data(), count, digits, digitsOverride);
    VB_SetFormat(handles, count, digits, digitsOverride);
  });
  for (const BSTR handle : handles) host.push_back(take(handle));
  if (wide == expectedWide && host == expectedHost) return testing::AssertionSuccess();
  return testing::AssertionFailure()
         << call() << " and VB_SetFormat\n  give     "
         << testing::PrintToString(std::pair(wide, host)) << "\n  expected "
         << testing::PrintToString(std::pair(expectedWide, expectedHost));
}

namespace {

struct Arguments {
  int32_t decimals, other;
  double value;
  HostBool useExponent, keepDecimals;
};
#define ARGUMENTS decimals, other, value, useExponent, keepDecimals

Arguments drawArguments(Random& random) {
  return {drawDecimals(random), drawDecimals(random), drawDouble(random), drawFlag(random),
          drawFlag(random)};
}

}  // namespace

const Checks& checksOfFormats() {
  static const Checks checks{CHECK(DecimalFormat, decimals),
                             CHECK(OutputFormat, value),
                             CHECK(OptimalFormat, value, decimals, useExponent, keepDecimals),
                             {"SetFormat", [](Random& random) {
                                const auto& [ARGUMENTS] = drawArguments(random);
                                return checkFormatsOf(std::min(drawInteger(random), 8), decimals,
                                                      other);
                              }}};
  return checks;
}
