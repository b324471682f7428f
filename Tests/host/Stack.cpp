// The stack that the routines need: each is called on a stack of 8 KiB with a guard page and then memory
// that may be written below it. A frame that jumps over the guard page would change that memory.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <ucontext.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <functional>

#include "support/HostRoutines.h"

namespace {

constexpr std::size_t kPage = 4096;
constexpr std::size_t kStack = 2 * kPage;
constexpr std::size_t kNeighbour = 16 * kPage;
constexpr unsigned char kPaint = 0xA5;

char* const neighbour =
    static_cast<char*>(mmap(nullptr, kNeighbour + kPage + kStack, PROT_READ | PROT_WRITE,
                            MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
char* const guard = neighbour + kNeighbour;
char* const stack = guard + kPage;

ucontext_t caller, callee;
const std::function<void()>* work;

void run() { (*work)(); }

// The painted bytes from `start` on.
std::size_t paintedBytes(const char* start, std::size_t size) {
  const auto isPaint = [](char byte) { return static_cast<unsigned char>(byte) == kPaint; };
  return static_cast<std::size_t>(std::find_if_not(start, start + size, isPaint) - start);
}

std::string explain(const void*) {
  return "more than " + std::to_string(kStack) + " bytes of stack are needed";
}

class Stack : public testing::Test {
 protected:
  void SetUp() override {
    static char handlerStack[64 * 1024];
    const stack_t alternate{.ss_sp = handlerStack, .ss_flags = 0, .ss_size = sizeof handlerStack};
    sigaltstack(&alternate, nullptr);
    explainFault = explain;
    ASSERT_EQ(mprotect(guard, kPage, PROT_NONE), 0);
  }
  void TearDown() override {
    std::printf("Highest use: %zu bytes, %s\n", highest_, highestCall_.c_str());
  }

  // Calls twice: the first call may bind functions and allocate the buffer of the thread.
  void expectFits(const std::string& name, const std::function<void()>& call) {
    call();
    const auto describe = [&] { return name; };
    const CurrentCall current(describe);
    std::memset(neighbour, kPaint, kNeighbour);
    std::memset(stack, kPaint, kStack);
    getcontext(&callee);
    callee.uc_stack.ss_sp = stack;
    callee.uc_stack.ss_size = kStack;
    callee.uc_link = &caller;
    work = &call;
    makecontext(&callee, run, 0);
    swapcontext(&caller, &callee);
    EXPECT_EQ(paintedBytes(neighbour, kNeighbour), kNeighbour)
        << name << " writes to memory below the guard page of its stack";
    const std::size_t used = kStack - paintedBytes(stack, kStack);
    if (used > highest_) highest_ = used, highestCall_ = name;
  }

 private:
  std::size_t highest_ = 0;
  std::string highestCall_;
};

}  // namespace

TEST_F(Stack, EveryHostRoutine) {
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

// Calls each routine as in the example of the header.
#undef EXPECT_TRUE
#undef EXPECT_EXAMPLE
#define EXPECT_TRUE(condition) expectFits(#condition, [&] { static_cast<void>(condition); })
#define EXPECT_EXAMPLE(actual, expected) expectFits(#actual, [&] { comparable(actual); })
#define EXAMPLE(routine, ...) __VA_ARGS__

TEST_F(Stack, EveryExampleOfTheHeader) {
  int32_t i, j;
  double x, xSecond, y;
#define EXAMPLE(routine, ...) __VA_ARGS__
#include "HeaderExamples.inc"
}
