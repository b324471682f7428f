// A fuzz target: runs checks with the numbers that libFuzzer's input holds. After the end of the input,
// numbers are random but the same for the same input.
#include <random>
#include <string_view>

#include "fuzz/Checks.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* input, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* input, std::size_t size) {
  const uint8_t* const end = input + size;
  std::mt19937_64 engine(
      std::hash<std::string_view>()({reinterpret_cast<const char*>(input), size}));
  Random random([&](int bits) {
    uint64_t drawn = 0;
    if (input == end) return engine();
    for (; bits > 0 && input < end; bits -= 8) drawn = drawn << 8 | *input++;
    return drawn;
  });
  for (int round = 0; round < 8; ++round) {
    const testing::AssertionResult result = checkAny(QUVARD_CHECKS(), random);
    if (result) continue;
    std::fprintf(stderr, "%s\n", result.message());
    std::abort();
  }
  return 0;
}
