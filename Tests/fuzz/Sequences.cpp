// Sequences of calls of host routines on two threads at once. Results become arguments of later calls on
// both threads. The thread that did not make a host string releases it.
#include <thread>

#include "fuzz/Checks.h"

namespace {

constexpr std::size_t kRounds = 3, kCalls = 4;
constexpr std::size_t kMaxSize = 100;  // of an argument, so that texts do not grow

// A host string and its expected text.
struct Shared {
  BSTR handle;
  Text text;
};

struct Call {
  const HostRoutine* routine;
  std::vector<BSTR> handles = {};
  Texts texts = {};
  Shared result = {};
  Text actual = {};

  void run() {
    // A text that changes must not be in use on the other thread.
    BSTR copy = nullptr;
    if (routine->worksInPlace(texts)) handles[0] = copy = SysAllocString16(handles[0]);
    if (routine->make) {
      result.handle = routine->make(handles.data());
      actual = result.handle == nullptr ? kNullHandle : widen(result.handle);
    } else {
      actual = routine->call(handles.data());
    }
    releaseBSTR(copy);
  }
};

// One thread's part of a round, and the host strings that the other thread releases in the next round.
struct Part {
  std::vector<Call> calls;
  std::vector<BSTR> released;

  void run() {
    for (const BSTR handle : released) releaseBSTR(handle);
    for (Call& call : calls) call.run();
  }
};

Call drawCall(Random& random, const std::vector<HostRoutine>& routines,
              const std::vector<Shared>& arguments) {
  Call call{&routines[random.below(routines.size())]};
  while (call.texts.size() < call.routine->strings) {
    const Shared& argument = arguments[random.below(arguments.size())];
    call.handles.push_back(argument.handle);
    call.texts.push_back(argument.text);
  }
  call.result.text = call.routine->expected(call.texts);
  return call;
}

testing::AssertionResult checkSequence(Random& random) {
  static Numbers numbers;
  static const std::vector<HostRoutine> routines = hostRoutines(numbers);
  std::vector<Shared> arguments{{nullptr, kNullHandle}};
  for (const std::size_t size : {kMaxSize, kMaxSize, std::size_t{1}, std::size_t{1}}) {
    const B text(drawText(random, {}).substr(0, size));
    arguments.push_back({SysAllocString16(text), text.text()});
  }
  auto result = testing::AssertionSuccess();
  Part parts[2];
  for (std::size_t round = 0; round < kRounds; ++round) {
    numbers = drawNumbers(random);
    for (Part& part : parts) {
      part.calls.clear();
      while (part.calls.size() < kCalls) {
        part.calls.push_back(drawCall(random, routines, arguments));
      }
    }
    std::thread other([&] { parts[1].run(); });
    parts[0].run();
    other.join();

    for (std::size_t i = 0; i < 2; ++i) {
      parts[1 - i].released.clear();
      for (const Call& call : parts[i].calls) {
        const auto& [handle, expected] = call.result;
        if (result) {
          result = isSame(call.actual, expected, [&] { return call.routine->show(call.texts); });
        }
        if (handle == nullptr) continue;
        if (expected.size() <= kMaxSize && random.below(2) == 0) {
          arguments.push_back(call.result);
        } else {
          parts[1 - i].released.push_back(handle);
        }
      }
    }
  }
  for (const auto& [handle, text] : arguments) {
    if (result)
      result = isSame(handle ? widen(handle) : kNullHandle, text, [] { return "argument"; });
    releaseBSTR(handle);
  }
  for (const Part& part : parts) {
    for (const BSTR handle : part.released) releaseBSTR(handle);
  }
  return result;
}

}  // namespace

const Checks& checksOfSequences() {
  static const Checks checks{{"Sequences", checkSequence}};
  return checks;
}
