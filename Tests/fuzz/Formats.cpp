#include "fuzz/Checks.h"

namespace {

testing::AssertionResult checkArrays(int32_t count, int32_t digits, int32_t digitsOverride) {
  const int32_t used = digitsOverride == -1 ? digits : digitsOverride;
  const Text pattern = stepwise::DecimalFormat(used < 1 ? 0 : used - 1);
  const auto call = [&] { return showCall("SetFormat", count, digits, digitsOverride); };
  announce(call);
  std::vector<Text> wide(8, L"stays");
  SetFormat(wide.data(), count, digits, digitsOverride);
  std::vector<BSTR> host(8);
  VB_SetFormat(host.data(), count, digits, digitsOverride);
  testing::AssertionResult result = testing::AssertionSuccess();
  for (int32_t i = 0; i < 8; ++i) {
    const auto at = static_cast<std::size_t>(i);
    for (const auto& [form, actual, unset] :
         {row("", wide[at], L"stays"s), row("VB_", take(host[at]), kNullHandle)}) {
      const auto isRight = isSame(actual, i < count ? pattern : unset, [&, form = form] {
        return form + call() + ", element " + std::to_string(i);
      });
      if (!isRight) result = isRight;
    }
  }
  return result;
}

}  // namespace

testing::AssertionResult checkFormat(Random& random) {
  std::size_t choice = random.below(4);
  const int32_t decimals = drawDecimals(random), other = drawDecimals(random);
  const double value = drawDouble(random);
  const HostBool useExponent = drawFlag(random), keepDecimals = drawFlag(random);
  CHECK(stepwise, DecimalFormat, decimals);
  CHECK(stepwise, OutputFormat, value);
  CHECK(stepwise, OptimalFormat, value, decimals, useExponent, keepDecimals);
  return checkArrays(std::min(drawInteger(random), 8), decimals, other);
}
