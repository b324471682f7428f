#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>

#include "QUVARDBS1C.h"
#include "numerics/TruncLng.h"

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// The factorials up to the last finite one, each from the one before by one rounded multiplication.
constexpr auto kFactorials = [] {
  std::array<double, 171> factorials{1.0};
  for (std::size_t n = 1; n < factorials.size(); ++n) {
    factorials[n] = factorials[n - 1] * static_cast<double>(n);
  }
  return factorials;
}();

// Cnk multiplies from r = 1 + q on in passes i = 2, 3, ... For whole q, r as it is after every 64th
// pass spares a call all passes but the last ones, each of which waits for the one before.
constexpr int kStride = 64;
constexpr int kRows = 7;
constexpr int kHighestSum = 1023;  // of q and the number of the pass: no product is out of range

// r after the passes from first to last.
constexpr double passed(double r, double q, int first, int last) {
  double i = first;
  for (int pass = first; pass <= last; ++pass, i += 1.0) r = ((q + i) * r) / i;
  return r;
}

// r after pass kStride * row, from q = kStride * row on: there are no more passes than q.
template <int row>
constexpr auto kPassed = [] {
  constexpr int last = kStride * row;
  std::array<double, std::size_t{kHighestSum + 1 - 2 * last}> results{};
  for (std::size_t at = 0; at < results.size(); ++at) {
    const double q = static_cast<double>(at) + last;
    if constexpr (row == 1) {
      results[at] = passed(1.0 + q, q, 2, last);
    } else {
      results[at] = passed(kPassed<row - 1>[at + kStride], q, last - kStride + 1, last);
    }
  }
  return results;
}();
constexpr const double* kPassedRows[kRows] = {
    kPassed<1>.data(), kPassed<2>.data(), kPassed<3>.data(), kPassed<4>.data(),
    kPassed<5>.data(), kPassed<6>.data(), kPassed<7>.data()};

// The coefficient of q + m over m, with kStride passes or more. q is finite and at least m where
// there is a pass at all. So each pass multiplies r by 2 or more, but for rounding, and an infinite
// r stays infinite.
double coefficient(double q, int m) {
  double r = 1.0 + q;
  int done = 1;
  if (q < kHighestSum && q == std::floor(q)) {
    const int whole = static_cast<int>(q);
    if (const int row = std::min(m, kHighestSum - whole) / kStride; row > 0) {
      done = row * kStride;
      r = kPassedRows[row - 1][whole - done];
    }
  }
  for (; m - done > kStride; done += kStride) {
    // One of the doublings is left over for what rounding takes.
    if (std::ldexp(r, m - done - 1) == kInfinity) return kInfinity;
    r = passed(r, q, done + 1, done + kStride);
  }
  return passed(r, q, done + 1, m);
}

// Cnk, inline for the sake of SumCnk.
inline double binomial(double n, double k) {
  if (k > n) return 0.0;
  if (k == n || k == 0.0) return 1.0;
  int32_t m = quvard::TruncLng(n - k);
  double q = k;
  if (m > k) {
    m = quvard::TruncLng(k);
    q = n - m;
  }
  return m < kStride ? passed(1.0 + q, q, 2, m) : coefficient(q, m);
}

// The terms 1 + (origin + step * k) for whole k, rounded in that order; step is 1 or -1. As long as
// inner sum and term stay each in one binade, terms of neighbours differ by exactly step.
struct Line {
  double origin, step;

  double inner(double k) const { return origin + step * k; }
  double term(double k) const { return 1.0 + inner(k); }
};

constexpr int kMantissaBits = 52;

bool isSameBinade(double a, double b) {
  return std::bit_cast<uint64_t>(a) >> kMantissaBits == std::bit_cast<uint64_t>(b) >> kMantissaBits;
}

bool isPowerOfTwo(double a) { return std::bit_cast<uint64_t>(a) << (64 - kMantissaBits) == 0; }

// The last of the whole numbers from 0 to `high` that holds, where 0 holds and after the first that
// does not none does.
template <typename Holds>
double lastThatHolds(double high, Holds holds) {
  double low = 0.0;
  while (low < high) {
    const double middle = std::ceil((low + high) * 0.5);
    if (holds(middle)) {
      low = middle;
    } else {
      high = middle - 1.0;
    }
  }
  return low;
}

double addOneByOne(double sum, const Line& line, double k, double end) {
  for (; k < end; k += 1.0) sum += line.term(k);
  return sum;
}

// `sum` and the terms from k up to but not including `end`, none of other sign than the others,
// rounded at each addition.
//
// While the sum stays in one binade, each addition rounds the term to a multiple of the sum's unit
// in the last place (ulp), ties to the even multiple. Terms that lie 2 * max(1, ulp) apart leave
// the same remainder and shift the sum by an even multiple, so they round alike: non-ties whatever
// the sum is, and ties since each leaves an even multiple behind. After a first such period, which
// brings the first tie, every period thus makes the same rounding errors, and its change of the sum
// differs from that of the period before by step * period^2. The second is added term by term, and
// as many as stay within the binade are then added at once. Every number in that is a multiple of
// ulp of at most 2^53 * ulp, and so exact.
double addRun(double sum, const Line& line, double k, double end) {
  constexpr double kShort = 64.0;
  while (end - k >= kShort) {
    const double ulp = std::nextafter(std::fabs(sum), kInfinity) - std::fabs(sum);
    const double period = 2.0 * std::max(1.0, ulp);
    if (end - k < 3.0 * period) break;

    const double first = k;
    const double start = sum;
    const double settled = addOneByOne(start, line, k, k + period);
    sum = addOneByOne(settled, line, k + period, k + 2.0 * period);
    k += 2.0 * period;
    if (!isSameBinade(start, sum)) continue;

    const double change = sum - settled;
    const double growth = line.step * period * period;
    const auto sumAfter = [&](double periods) {
      return sum + (periods * change + growth * (periods * (periods + 1.0) * 0.5));
    };
    const double periods = lastThatHolds(std::floor((end - k) / period), [&](double count) {
      const double last = k + count * period - 1.0;
      const double after = sumAfter(count);
      return count * std::fabs(change) <= 0x1p53 * ulp && isSameBinade(sum, after) &&
             !isPowerOfTwo(after) && isSameBinade(line.inner(first), line.inner(last)) &&
             isSameBinade(line.term(first), line.term(last));
    });
    sum = sumAfter(periods);
    k += periods * period;
  }
  return addOneByOne(sum, line, k, end);
}

}  // namespace

double Fact(int32_t n) noexcept {
  if (n < 2) return 1.0;
  const auto index = static_cast<std::size_t>(n);
  return index < kFactorials.size() ? kFactorials[index] : kInfinity;
}

double Cnk(double n, double k) noexcept { return binomial(n, k); }

double SumCnk(double n, double from, double to) noexcept {
  double k = quvard::TruncLng(from);
  if (!(to >= k)) return 0.0;
  to = std::min(to, 2147483647.0);
  if (n < to) to = n;  // all terms above n are 0

  // With 2^31 or more between n and k, or a NaN n, the term is 1 + k; with less, and a negative k,
  // it is 1 + (n - k).
  double sum = 0.0;
  const auto isFar = [n](double at) { return !(n - at < 2147483648.0); };
  if (k <= to && isFar(k)) {
    const double start = k;
    const auto isStillFar = [&](double i) { return isFar(start + i); };
    const double end = start + lastThatHolds(std::floor(to) - start, isStillFar) + 1.0;
    const double change = std::clamp(-1.0, start, end);
    sum = addRun(sum, {0.0, 1.0}, start, change);
    sum = addRun(sum, {0.0, 1.0}, change, end);
    k = end;
  }
  if (k <= to && k < 0.0) {
    const double end = std::min(0.0, std::floor(to) + 1.0);
    sum = addRun(sum, {n, -1.0}, k, end);
    k = end;
  }
  // From here on no term is negative, so that an infinite sum stays.
  for (; k <= to && sum < kInfinity; k += 1.0) sum += binomial(n, k);
  return sum;
}
