#include <algorithm>
#include <array>
#include <bit>
#include <cmath>

#include "QUVARDBS1C.h"
#include "numerics/StrictDoubles.h"
#include "numerics/TruncLng.h"

namespace {

// A coefficient is worked out in passes, from r = 1 + q on: pass i takes r to ((q + i) * r) / i. Each
// pass waits for the one before, mostly for its division.
constexpr double runPasses(double r, double q, int32_t first, int32_t last) {
  double i = first;
  for (int32_t pass = first; pass <= last; ++pass, i += 1.0) r = ((q + i) * r) / i;
  return r;
}

// The coefficients of whole n below 128, for k up to n / 2, so that most calls run no passes:
// Cnk(52, 5) takes half the time that it takes with passes, SumCnk(100, 0, 100) a tenth.
constexpr int32_t kTableEnd = 128;

// The row of n has n / 2 + 1 coefficients, so all rows before it have (n + 1)^2 / 4, rounded down.
constexpr std::size_t tableIndex(int32_t n, int32_t k) {
  const auto next = static_cast<std::size_t>(n) + 1;
  return next * next / 4 + static_cast<std::size_t>(k);
}

// With the same q = n - k, the coefficient of n - 1 over k - 1 lacks the last pass alone.
constexpr auto kTable = [] {
  std::array<double, tableIndex(kTableEnd, 0)> table{};
  for (int32_t n = 0; n < kTableEnd; ++n) {
    table[tableIndex(n, 0)] = 1.0;
    for (int32_t k = 1; k <= n / 2; ++k) {
      table[tableIndex(n, k)] = runPasses(table[tableIndex(n - 1, k - 1)], n - k, k, k);
    }
  }
  return table;
}();

// For larger integral n up to 1023: r after every 64th pass, so that a call runs at most 63 passes.
// Cnk(1000, 500) takes 0.14 us with these checkpoints, 2 us without. Beyond n = 1023 a product overflows.
constexpr int32_t kStride = 64;
constexpr int32_t kMaxSum = 1023;  // of q and the number of passes

// kCheckpoints<c>[q - 64 * c] is r after pass 64 * c, for the q with 64 * c <= q <= 1023 - 64 * c. One
// array for each c, since the compilers limit the steps of one constant expression.
template <int32_t c>
constexpr auto kCheckpoints = [] {
  constexpr int32_t last = kStride * c;
  std::array<double, std::size_t{kMaxSum + 1 - 2 * last}> results{};
  for (std::size_t at = 0; at < results.size(); ++at) {
    const double q = static_cast<double>(at) + last;
    if constexpr (c == 1) {
      results[at] = runPasses(1.0 + q, q, 2, last);
    } else {
      results[at] = runPasses(kCheckpoints<c - 1>[at + kStride], q, last - kStride + 1, last);
    }
  }
  return results;
}();
constexpr const double* kCheckpointsOf[] = {nullptr,
                                            kCheckpoints<1>.data(),
                                            kCheckpoints<2>.data(),
                                            kCheckpoints<3>.data(),
                                            kCheckpoints<4>.data(),
                                            kCheckpoints<5>.data(),
                                            kCheckpoints<6>.data(),
                                            kCheckpoints<7>.data()};

// The largest e for which 2^e is not above r, for r from 1 on; 1024 for infinity.
int32_t exponent(double r) { return static_cast<int32_t>(std::bit_cast<uint64_t>(r) >> 52) - 1023; }

// r after pass m, which is kStride or more; q is finite and at least m.
double runManyPasses(double q, int32_t m) {
  double r = 1.0 + q;
  int32_t done = 1;
  if (q < kMaxSum && q == std::floor(q)) {
    const auto integer = static_cast<int32_t>(q);
    if (const int32_t c = std::min(m, kMaxSum - integer) / kStride; c > 0) {
      done = c * kStride;
      r = kCheckpointsOf[c][integer - done];
    }
  }
  // Since q >= m, each pass at least doubles r, except for rounding, for which one doubling is left out.
  // If the doublings alone overflow, return infinity early.
  for (; m - done > kStride; done += kStride) {
    if (m - done - 1 >= std::numeric_limits<double>::max_exponent - exponent(r)) {
      return std::numeric_limits<double>::infinity();
    }
    r = runPasses(r, q, done + 1, done + kStride);
  }
  return runPasses(r, q, done + 1, m);
}

}  // namespace

double Cnk(double n, double k) noexcept {
  if (k >= n) return k > n ? 0.0 : 1.0;
  if (k == 0.0) return 1.0;
  int32_t m = quvard::TruncLng(n - k);
  double q = k;
  if (m > k) {
    m = quvard::TruncLng(k);
    q = n - m;
  }
  // A few passes take no longer than a look into the table.
  if (m < 4) return runPasses(1.0 + q, q, 2, m);
  if (q < kTableEnd - m) {
    const auto whole = static_cast<int32_t>(q);
    if (whole == q) return kTable[tableIndex(whole + m, m)];
  }
  return m < kStride ? runPasses(1.0 + q, q, 2, m) : runManyPasses(q, m);
}
