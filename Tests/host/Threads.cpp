// Every routine on eight threads at once, while other threads start and end. The results are those of one
// thread. The thread sanitizer reports data that the calls share.
#include <thread>

#include "fuzz/Checks.h"

namespace {

struct Case {
  HostRoutine routine;
  Texts texts;
  Strings arguments = Strings(texts);
  Text expected = routine.expected(texts);
};

// All threads share the arguments, so no case changes one.
std::vector<Case> makeCases() {
  std::vector<Case> cases;
  Random random;
  for (const HostRoutine& routine : hostRoutines()) {
    for (int i = 0; i < 20; ++i) {
      Texts texts(routine.strings);
      for (Text& text : texts) text = random.text(L"a :<BR>7", i % 5 == 0 ? 700 : 3);
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
    // Each runs 30 threads in succession.
    threads.emplace_back([&cases, i] {
      for (std::size_t round = 0; round < 30; ++round) {
        std::thread([&] {
          for (std::size_t k = 0; k < cases.size(); ++k) {
            const Case& current = cases[(97 * i + 31 * round + k) % cases.size()];
            EXPECT_EQ(current.routine.call(current.arguments.handles()), current.expected)
                << current.routine.show(current.texts);
          }
          callExamples();
        }).join();
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}

TEST(Threads, PassHostStringsToEachOther) {
  Random random;
  for (int i = 0; i < 2000; ++i)
    ASSERT_TRUE(checkAny(checksOfSequences(), random)) << "in sequence " << i;
}
