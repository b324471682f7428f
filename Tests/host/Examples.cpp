// The examples of the chief header, extracted when the tests are built.
#include "support/Expectations.h"

namespace {

// Named by the routine and by the number of the example in the header.
#define EXAMPLE(routine, ...)                                  \
  addTest(#routine, "Example" + std::to_string(__LINE__), [] { \
    [[maybe_unused]] int32_t i = 0, j = 0;                     \
    [[maybe_unused]] double x = 0.0, xSecond = 0.0, y = 0.0;   \
    __VA_ARGS__                                                \
  });
[[maybe_unused]] const bool areAdded = [] {
#include "HeaderExamples.inc"
  return true;
}();

}  // namespace
