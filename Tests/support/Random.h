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
  explicit Random(uint64_t seed = 20240607)
      : Random([engine = std::mt19937_64(seed)](int) mutable { return engine(); }) {}

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

  // An edge value, a decimal, a power of ten, a value near one of them, or any double, of either sign.
  double edge() {
    constexpr double kEdges[] = {0.0,    kTiny, 1e-300,   0x1p-51,    0.25,   0.5,
                                 1.0,    2.0,   0x1p31,   0x1p31 - 1, 0x1p32, 0x1p52,
                                 0x1p53, 1e300, kExtreme, kInf,       kNaN};
    double x = std::bit_cast<double>(source_(64));
    const std::size_t choice = below(5);
    if (choice < 2) x = kEdges[below(std::size(kEdges))];
    if (choice == 2) x = integer() / std::pow(10.0, static_cast<double>(below(10)));
    if (choice == 3) x = std::pow(10.0, static_cast<double>(below(50)) - 30.0);
    const std::size_t offset = below(6);
    if (offset == 0) x += between(-2e-12, 2e-12);
    if (offset == 1) x *= 1.0 + between(-1e-4, 1e-4);
    if (offset == 2) x = std::bit_cast<double>(std::bit_cast<uint64_t>(x) + below(9) - 4);
    return below(2) == 0 ? x : -x;
  }

 private:
  std::function<uint64_t(int)> source_;
};

#endif
