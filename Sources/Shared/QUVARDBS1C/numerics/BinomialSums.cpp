#include <algorithm>
#include <bit>
#include <cmath>

#include "QUVARDBS1C.h"
#include "numerics/StrictDoubles.h"
#include "numerics/TruncLng.h"

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Terms that grow or fall by 1: 1 + (origin + step * k) for whole k, rounded in that order, where
// step is 1 or -1. As long as the inner sum and the term stay each between two powers of two, terms
// of neighbours differ by exactly step.
struct Terms {
  double origin, step;

  double inner(double k) const { return origin + step * k; }
  double term(double k) const { return 1.0 + inner(k); }
};

constexpr int kMantissaBits = 52;

// A binade is the range of doubles from one power of two to the next, of one sign.
bool areInOneBinade(double a, double b) {
  return std::bit_cast<uint64_t>(a) >> kMantissaBits == std::bit_cast<uint64_t>(b) >> kMantissaBits;
}

// The last whole number from 0 to `high` for which the condition is true. It is true for 0, and from
// the first number for which it is false on it stays false, so that each trial halves what is left.
template <typename Condition>
double lastWhere(double high, Condition isTrueFor) {
  double low = 0.0;
  while (low < high) {
    const double middle = std::ceil((low + high) * 0.5);
    if (isTrueFor(middle)) {
      low = middle;
    } else {
      high = middle - 1.0;
    }
  }
  return low;
}

double addOneByOne(double sum, const Terms& terms, double k, double end) {
  for (; k < end; k += 1.0) sum += terms.term(k);
  return sum;
}

// `sum` and the terms from k up to but not including `end`, rounded at each addition.
//
// While the sum stays in one binade, each addition rounds the term to a multiple of the sum's unit
// in the last place (ulp), ties to the even multiple. Terms that are 2 * max(1, ulp) apart, a
// period, leave the same remainder and move the sum by an even multiple, so they round alike:
// non-ties whatever the sum is, and ties because each makes the sum an even multiple. So after a
// first period, which has the first tie, every period makes the same rounding errors, and its change
// of the sum differs from that of the period before by step * period^2. The second period is added
// term by term, and as many as stay within the binade are then added at once, if their terms stay
// within one too. All of them change the sum by less than 2^52 * ulp, for it stays in its binade. Their
// terms differ by less than a factor of 2, and from one period to the next by the same amount, so the
// second period's change times their number is at most about 4/3 of that. So every number here is a
// multiple of ulp of at most 2^53 * ulp, and exact.
double addRun(double sum, const Terms& terms, double k, double end) {
  constexpr double kShort = 64.0;
  while (end - k >= kShort) {
    const double ulp = std::nextafter(std::fabs(sum), kInfinity) - std::fabs(sum);
    const double period = 2.0 * std::max(1.0, ulp);
    if (end - k < 3.0 * period) break;

    const double first = k;
    const double start = sum;
    const double settled = addOneByOne(start, terms, k, k + period);
    sum = addOneByOne(settled, terms, k + period, k + 2.0 * period);
    k += 2.0 * period;
    if (!areInOneBinade(start, sum)) continue;

    const double change = sum - settled;
    const double growth = terms.step * period * period;
    const auto sumAfter = [&](double periods) {
      return sum + (periods * change + growth * (periods * (periods + 1.0) * 0.5));
    };
    const double periods = lastWhere(std::floor((end - k) / period), [&](double count) {
      const double last = k + count * period - 1.0;
      const double after = sumAfter(count);
      // A sum that falls to the power of two at the end of its binade may be rounded beyond it.
      return areInOneBinade(sum, std::nextafter(after, 0.0)) &&
             areInOneBinade(terms.inner(first), terms.inner(last)) &&
             areInOneBinade(terms.term(first), terms.term(last));
    });
    sum = sumAfter(periods);
    k += periods * period;
  }
  return addOneByOne(sum, terms, k, end);
}

}  // namespace

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
    const auto isStillFar = [&](double i) { return isFar(k + i); };
    const double end = k + lastWhere(std::floor(to) - k, isStillFar) + 1.0;
    sum = addRun(sum, {0.0, 1.0}, k, end);
    k = end;
  }
  if (k <= to && k < 0.0) {
    const double end = std::min(0.0, std::floor(to) + 1.0);
    sum = addRun(sum, {n, -1.0}, k, end);
    k = end;
  }
  // From here on no term is negative, so that an infinite sum stays.
  for (; k <= to && sum < kInfinity; k += 1.0) sum += Cnk(n, k);
  return sum;
}
