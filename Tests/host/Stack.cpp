// Every routine needs at most 8 KiB of stack. Each call runs on a painted stack; the lowest byte that
// changed shows how deep it went. A frame that skips memory is found as well, since the paint reaches far
// below 8 KiB.
#include <ucontext.h>

#include <algorithm>
#include <functional>

#include "support/HostRoutines.h"

namespace {

constexpr std::ptrdiff_t kLimit = 8 * 1024;
constexpr char kPaint = '\xA5';

char stack[16 * kLimit];
ucontext_t caller, callee;
const std::function<void()>* work;

void expectFits(const std::string& name, const std::function<void()>& call) {
  call();  // the first call may bind functions and allocate the buffer of the thread
  std::fill(std::begin(stack), std::end(stack), kPaint);
  getcontext(&callee);
  callee.uc_stack.ss_sp = stack;
  callee.uc_stack.ss_size = sizeof stack;
  callee.uc_link = &caller;
  work = &call;
  makecontext(
      &callee, [] { (*work)(); }, 0);
  swapcontext(&caller, &callee);
  const char* const lowest =
      std::find_if(std::begin(stack), std::end(stack), [](char byte) { return byte != kPaint; });
  EXPECT_LE(std::end(stack) - lowest, kLimit) << "bytes of stack in " << name;
}

}  // namespace

TEST(Stack, EveryHostRoutine) {
  const Text units = L"a,b:<BR> 7", longer(5000, L'a');
  const Text inPlace = units + units + units + units + units + units + L"a,b:";
  for (const HostRoutine& routine : hostRoutines()) {
    for (const Texts& texts : {Texts{units, L",", L"US", L"b", L":", units},
                               Texts{inPlace, L"a", inPlace, L"b", L"", L""},
                               Texts{inPlace, inPlace, inPlace, inPlace, inPlace, inPlace},
                               Texts{longer + units, longer, longer, L"a", L"ab", longer}}) {
      const Strings strings(texts);
      expectFits(routine.show(texts), [&] { routine.run(strings.handles()); });
    }
  }
}

// Runs the examples of the header without their expectations.
#undef EXPECT_TRUE
#undef EXPECT_EXAMPLE
#define EXPECT_TRUE(condition) expectFits(#condition, [&] { static_cast<void>(condition); })
#define EXPECT_EXAMPLE(actual, expected) expectFits(#actual, [&] { comparable(actual); })
#define EXAMPLE(routine, ...) __VA_ARGS__

TEST(Stack, EveryExampleOfTheHeader) {
  int32_t i, j;
  double x, xSecond, y;
#include "HeaderExamples.inc"
}
