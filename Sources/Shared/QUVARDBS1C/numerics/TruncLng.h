// The truncation of a double to 32 bits, for the numerics and the number patterns.
#ifndef QUVARDBS1C_NUMERICS_TRUNCLNG_H
#define QUVARDBS1C_NUMERICS_TRUNCLNG_H

#include <stdint.h>

#include <limits>

namespace quvard {

// x truncated toward zero; the lowest integer if that does not fit 32 bits, or x is NaN. The test
// comes before the conversion because converting a value that does not fit is undefined.
constexpr int32_t TruncLng(double x) {
  return x > -2147483649.0 && x < 2147483648.0 ? static_cast<int32_t>(x)
                                               : std::numeric_limits<int32_t>::min();
}

}  // namespace quvard

#endif
