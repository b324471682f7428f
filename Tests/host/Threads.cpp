// Every routine on eight threads at once, while other threads end and start, gives what it gives on
// one. The thread sanitizer sees what they share.
#include <thread>

#include "fuzz/Checks.h"
#include "support/HostRoutines.h"
#include "support/Random.h"

namespace {

struct Case {
  HostRoutine routine;
  Texts texts;
  Strings arguments = Strings(texts);
  Text expected = routine.expected(texts);
};

// Each routine with some texts, which all threads share.
std::vector<Case> makeCases() {
  std::vector<Case> cases;
  Random random;
  for (const HostRoutine& routine : hostRoutines()) {
    for (int i = 0; i < 20; ++i) {
      Texts texts(routine.strings);
      for (Text& text : texts) text = random.text(L"a :<BR>7", i % 5 == 0 ? 700 : 3);
      // One that writes to its text may not share it.
      if (!routine.worksInPlace(texts)) cases.push_back({routine, texts});
    }
  }
  return cases;
}

void callExamples() {
  int32_t i, j;
  double x, xSecond, y;
#define EXAMPLE(routine, ...) __VA_ARGS__
#include "HeaderExamples.inc"
}

}  // namespace

TEST(Threads, EightAtOnce) {
  const std::vector<Case> cases = makeCases();
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i < 8; ++i) {
    // Each is a row of threads: one ends, the next starts, while the other seven call.
    threads.emplace_back([&cases, i] {
      for (std::size_t round = 0; round < 30; ++round) {
        std::thread([&] {
          for (std::size_t k = 0; k < cases.size(); ++k) {
            const Case& at = cases[(97 * i + 31 * round + k) % cases.size()];
            EXPECT_EQ(at.routine.call(at.arguments.handles()), at.expected)
                << at.routine.show(at.texts);
          }
          callExamples();
        }).join();
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}

// Results go from call to call and from thread to thread.
TEST(Threads, InRandomSequences) {
  Random random;
  for (int i = 0; i < 2000; ++i)
    ASSERT_TRUE(checkAny(checksOfSequences(), random)) << "in sequence " << i;
}
