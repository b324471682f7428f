// Random arguments. They come from a generator with a fixed seed, or from the input of a fuzz target.
#ifndef TESTS_SUPPORT_RANDOM_H
#define TESTS_SUPPORT_RANDOM_H

#include <bit>
#include <cstdint>
#include <functional>
#include <random>
#include <string>
#include <utility>

#include "support/Doubles.h"

class Random {
 public:
  Random() : Random([engine = std::mt19937_64(20240607)](int) mutable { return engine(); }) {}

  // `source` takes the number of bits needed and returns at least so many.
  explicit Random(std::function<uint64_t(int)> source) : source_(std::move(source)) {}

  std::size_t below(std::size_t limit) { return source_(limit <= 0x100 ? 8 : 64) % limit; }

  double between(double low, double high) {
    return low + (high - low) * (static_cast<double>(source_(64) >> 11) * 0x1p-53);
  }

  // Any integer. Each number of bits is equally likely.
  int32_t integer() { return static_cast<int32_t>(source_(32)) >> below(32); }

  // A text over an alphabet. A small alphabet makes patterns occur, overlap and adjoin.
  std::wstring text(const std::wstring& alphabet, std::size_t maxSize) {
    std::wstring text(below(maxSize + 1), L' ');
    for (wchar_t& unit : text) unit = alphabet[below(alphabet.size())];
    return text;
  }

  // An edge value of either sign, a value near one, or any double.
  double edge() {
    constexpr double kEdges[] = {
        0.0,  kTiny,  1e-300,     1e-12,  0x1p-51, 1e-6,   0.25, 0.5,   1.0,      2.0,  6.5, 709.0,
        1e10, 0x1p31, 0x1p31 - 1, 0x1p32, 0x1p52,  0x1p53, 1e16, 1e300, kExtreme, kInf, kNaN};
    const std::size_t choice = below(std::size(kEdges) + 4);
    double x = choice < std::size(kEdges) ? kEdges[choice] : std::bit_cast<double>(source_(64));
    const std::size_t shift = below(9);
    if (shift == 1) x = ::above(x);
    if (shift == 2) x = ::below(x);
    if (shift > 6) x += static_cast<double>(shift) * 0.25;
    return shift % 2 == 0 ? x : -x;
  }

 private:
  std::function<uint64_t(int)> source_;
};

#endif
