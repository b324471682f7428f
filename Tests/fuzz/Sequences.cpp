// Sequences of calls of host routines on several threads at once. Results become arguments of later calls
// on all threads. Another thread than the one that made a host string releases it.
#include <thread>
#include <utility>

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
    // A text that changes must not be in use on another thread.
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

}  // namespace

testing::AssertionResult checkSequence(Random& random, std::size_t threads) {
  static Numbers numbers;
  static const std::vector<HostRoutine> routines = hostRoutines(numbers);
  Pool initial{{nullptr, kNullHandle}};
  for (const Text& text : {Text(300, L' '), drawText(random, {}).substr(0, kMaxSize),
                           random.text(L"ab:", kMaxSize), Text(1, L'a'), Text(1, L':')}) {
    const B string(text);
    initial.push_back({SysAllocString16(string), string.text()});
  }
  std::vector<testing::AssertionResult> results(threads, testing::AssertionSuccess());
  std::vector<Pool> made(threads), next(threads), released(threads);
  for (int round = 0; round < kRounds; ++round) {
    numbers = drawNumbers(random);
    Pool pool = initial;
    for (const Pool& strings : made) pool.insert(pool.end(), strings.begin(), strings.end());
    std::vector<std::thread> running;
    for (std::size_t i = 0; i < threads; ++i) {
      running.emplace_back([&, i, own = Random(random.below(kSeeds))] {
        releaseAll(released[i]);
        results[i] = callOnPool(own, routines, pool, next[i]);
      });
    }
    for (std::thread& thread : running) thread.join();
    for (const auto& [handle, text] : pool) {
      results.push_back(isSame(textsOf({&handle, 1})[0], text, [] { return "an argument"; }));
    }
    for (const testing::AssertionResult& result : results) {
      if (!result) return result;
    }
    // The next thread releases what this one made, after one round as arguments.
    for (std::size_t i = 0; i < threads; ++i) {
      released[(i + 1) % threads] = std::exchange(made[i], std::exchange(next[i], {}));
    }
  }
  releaseAll(initial);
  for (auto* const pools : {&made, &released})
    std::for_each(pools->begin(), pools->end(), releaseAll);
  return testing::AssertionSuccess();
}

const Checks& checksOfSequences() {
  static const Checks checks{
      {"Sequences", [](Random& random) { return checkSequence(random, 2); }}};
  return checks;
}
