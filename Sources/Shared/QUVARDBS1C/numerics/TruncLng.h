#ifndef QUVARDBS1C_NUMERICS_TRUNCLNG_H
#define QUVARDBS1C_NUMERICS_TRUNCLNG_H

#include <cstdint>
#include <limits>

namespace quvard {

// x truncated toward zero to 32 bits. A value that does not fit, an infinity and NaN all give the
// lowest integer; no such value is ever converted, for that would be undefined.
inline std::int32_t TruncLng(double x) {
  return x > -2147483649.0 && x < 2147483648.0 ? static_cast<std::int32_t>(x)
                                               : std::numeric_limits<std::int32_t>::min();
}

}  // namespace quvard

#endif
