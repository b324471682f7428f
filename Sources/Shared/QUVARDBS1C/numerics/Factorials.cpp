#include <array>

#include "QUVARDBS1C.h"
#include "numerics/StrictDoubles.h"

namespace {

// The factorials up to the last finite one, each from the one before by one rounded multiplication.
constexpr auto kFactorials = [] {
  std::array<double, 171> factorials{1.0};
  for (std::size_t n = 1; n < factorials.size(); ++n) {
    factorials[n] = factorials[n - 1] * static_cast<double>(n);
  }
  return factorials;
}();

}  // namespace

double Fact(int32_t n) noexcept {
  if (n < 2) return 1.0;
  const auto index = static_cast<std::size_t>(n);
  return index < kFactorials.size() ? kFactorials[index] : std::numeric_limits<double>::infinity();
}
