// Sequences of calls of host routines on two threads at once. Results become arguments of later calls on
// both threads. The thread that did not make a host string releases it.
#include <thread>

#include "fuzz/Checks.h"

namespace {

constexpr int kRounds = 3, kCalls = 4;
constexpr std::size_t kSeeds = 1U << 31;
constexpr std::size_t kMaxSize = 100;  // of an argument, so that texts do not grow

// A host string and its expected text.
struct Shared {
  BSTR handle;
  Text text;
};
using Pool = std::vector<Shared>;

void releaseAll(Pool& pool) {
  for (const Shared& string : pool) releaseBSTR(string.handle);
  pool.clear();
}

// Calls routines on host strings of a pool. Results that may become arguments are added to `made`.
testing::AssertionResult callOnPool(Random random, const std::vector<HostRoutine>& routines,
                                    const Pool& pool, Pool& made) {
  for (int i = 0; i < kCalls; ++i) {
    const HostRoutine& routine = routines[random.below(routines.size())];
    std::vector<BSTR> handles;
    Texts texts;
    while (texts.size() < routine.strings) {
      const auto& [handle, text] = pool[random.below(pool.size())];
      handles.push_back(handle);
      texts.push_back(text);
    }
    const Text expected = routine.expected(texts);
    // A text that changes must not be in use on the other thread.
    BSTR copy = nullptr;
    if (routine.worksInPlace(texts)) handles[0] = copy = SysAllocString16(handles[0]);
    Text actual;
    if (routine.make && expected.size() <= kMaxSize) {
      made.push_back({routine.make(handles.data()), expected});
      actual = textsOf({&made.back().handle, 1})[0];
    } else {
      actual = routine.call(handles.data());
    }
    releaseBSTR(copy);
    const auto result = isSame(actual, expected, [&] { return routine.show(texts); });
    if (!result) return result;
  }
  return testing::AssertionSuccess();
}

testing::AssertionResult checkSequence(Random& random) {
  static Numbers numbers;
  static const std::vector<HostRoutine> routines = hostRoutines(numbers);
  Pool initial{{nullptr, kNullHandle}};
  for (const std::size_t size : {kMaxSize, kMaxSize, std::size_t{1}, std::size_t{1}}) {
    const B text(drawText(random, {}).substr(0, size));
    initial.push_back({SysAllocString16(text), text.text()});
  }
  auto result = testing::AssertionSuccess(), otherResult = result;
  Pool made[2],
      released[2];  // what each thread made in the round before, and what it is to release
  for (int round = 0; round < kRounds; ++round) {
    numbers = drawNumbers(random);
    Pool pool = initial, next[2];
    for (const Pool& strings : made) pool.insert(pool.end(), strings.begin(), strings.end());
    const auto run = [&](std::size_t thread, Random own) {
      releaseAll(released[thread]);
      return callOnPool(own, routines, pool, next[thread]);
    };
    Random first(random.below(kSeeds)), second(random.below(kSeeds));
    std::thread other([&] { otherResult = run(1, second); });
    result = run(0, first);
    other.join();
    if (!otherResult) result = otherResult;
    for (const auto& [handle, text] : pool) {
      if (result) result = isSame(textsOf({&handle, 1})[0], text, [] { return "an argument"; });
    }
    if (!result) return result;
    for (std::size_t i = 0; i < 2; ++i) released[1 - i] = std::exchange(made[i], next[i]);
  }
  for (Pool* const pool : {&initial, &made[0], &made[1], &released[0], &released[1]}) {
    releaseAll(*pool);
  }
  return result;
}

}  // namespace

const Checks& checksOfSequences() {
  static const Checks checks{{"Sequences", checkSequence}};
  return checks;
}
