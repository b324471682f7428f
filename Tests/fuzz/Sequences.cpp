// Sequences of calls of host routines on two threads at once. Results become arguments of later calls, on
// both threads, and are released on the thread that did not make them.
#include <thread>

#include "fuzz/Checks.h"
#include "support/HostRoutines.h"

namespace {

constexpr std::size_t kRounds = 3, kCalls = 4;
constexpr std::size_t kLongest = 100;  // longer results are no arguments, so that texts do not grow

// A host string, the thread that makes it and what it is to hold.
struct Shared {
  Text text;
  std::size_t maker = 0;
  BSTR handle = nullptr;
  bool isPlanned = true;  // in this round, so only its maker may use it
  bool isReleased = false;
};

struct Call {
  const HostRoutine* routine;
  std::vector<std::size_t> arguments;  // indices of shared strings
  Texts texts;                         // what these are to hold
  Text expected, actual = {};
  std::size_t result;  // the shared string that it makes, if it makes one
};

// What a thread does in a round.
struct Part {
  std::vector<std::size_t> released;
  std::vector<Call> calls;
};

// The strings do not move while the threads run.
void run(Part& part, std::vector<Shared>& strings) {
  for (const std::size_t i : part.released) releaseBSTR(strings[i].handle);
  for (Call& call : part.calls) {
    std::vector<BSTR> handles;
    for (const std::size_t i : call.arguments) handles.push_back(strings[i].handle);
    // A text that changes must not be in use on the other thread, so it is a copy.
    const bool isCopied = call.routine->worksInPlace(call.texts);
    if (isCopied) handles[0] = SysAllocString16(handles[0]);
    if (call.routine->make) {
      const BSTR result = strings[call.result].handle = call.routine->make(handles.data());
      call.actual = result == nullptr ? kNullHandle : widen(result);
    } else {
      call.actual = call.routine->call(handles.data());
    }
    if (isCopied) releaseBSTR(handles[0]);
  }
}

Call drawCall(Random& random, std::size_t thread, const std::vector<HostRoutine>& routines,
              std::vector<Shared>& strings) {
  std::vector<std::size_t> usable;
  for (std::size_t i = 0; i < strings.size(); ++i) {
    const Shared& string = strings[i];
    const bool isThere = !string.isPlanned || string.maker == thread;
    if (isThere && !string.isReleased && string.text.size() <= kLongest) usable.push_back(i);
  }
  Call call{&routines[random.below(routines.size())], {}, {}, {}, {}, strings.size()};
  while (call.texts.size() < call.routine->strings) {
    // The last ones above all: the results of the calls before.
    const std::size_t back = random.below(random.below(2) == 0 ? 3 : usable.size());
    const std::size_t i = usable[usable.size() - 1 - std::min(back, usable.size() - 1)];
    call.arguments.push_back(i);
    call.texts.push_back(strings[i].text);
  }
  call.expected = call.routine->expected(call.texts);
  if (call.routine->make) strings.push_back({call.expected, thread});
  return call;
}

testing::AssertionResult checkRound(Random& random, const std::vector<HostRoutine>& routines,
                                    std::vector<Shared>& strings) {
  Part parts[2];
  for (std::size_t i = 1; i < strings.size(); ++i) {  // the null handle stays
    if (strings[i].isReleased || random.below(3) != 0) continue;
    strings[i].isReleased = true;
    parts[1 - strings[i].maker].released.push_back(i);
  }
  for (std::size_t i = 0; i < 2 * kCalls; ++i) {
    parts[i % 2].calls.push_back(drawCall(random, i % 2, routines, strings));
  }
  std::thread other([&] { run(parts[1], strings); });
  run(parts[0], strings);
  other.join();

  for (const Part& part : parts) {
    for (const Call& call : part.calls) {
      const auto result =
          isSame(call.actual, call.expected, [&] { return call.routine->show(call.texts); });
      if (!result) return result;
    }
  }
  for (Shared& string : strings) {
    string.isPlanned = false;
    if (string.isReleased || string.handle == nullptr) continue;
    const auto result = isSame(widen(string.handle), string.text,
                               [] { return "a string after the calls that take it"s; });
    if (!result) return result;
  }
  return testing::AssertionSuccess();
}

testing::AssertionResult checkSequence(Random& random) {
  static Numbers numbers;
  static const std::vector<HostRoutine> routines = hostRoutines(numbers);
  std::vector<Shared> strings{{kNullHandle, 0, nullptr, false}};
  Texts texts;
  while (texts.size() < 4) {
    // Two of at most one unit, for which VB_Replace works in place.
    const B made(drawText(random, texts).substr(0, texts.size() < 2 ? kLongest : 1));
    texts.push_back(made.text());
    strings.push_back({texts.back(), 0, SysAllocString16(made), false});
  }
  testing::AssertionResult result = testing::AssertionSuccess();
  for (std::size_t round = 0; round < kRounds && result; ++round) {
    numbers = {drawInteger(random), drawInteger(random), drawDecimals(random), drawFlag(random),
               drawFlag(random),    drawFlag(random),    drawDouble(random)};
    result = checkRound(random, routines, strings);
  }
  for (const Shared& string : strings) {
    if (!string.isReleased) releaseBSTR(string.handle);
  }
  return result;
}

}  // namespace

const Checks& checksOfSequences() {
  static const Checks checks{{"Sequences", checkSequence}};
  return checks;
}
