#include <cmath>

#include "QUVARDBS1C.h"
#include "numerics/StrictDoubles.h"

int32_t Mod(int32_t a, int32_t b) noexcept {
  if (b == 0) return a;
  if (b == -1) return 0;  // the quotient of the lowest integer by -1 does not fit 32 bits
  const int32_t remainder = a % b;
  return remainder != 0 && (remainder < 0) != (b < 0) ? remainder + b : remainder;
}

double ModDbl(double a, double b) noexcept { return a - std::floor(a / b) * b; }
