// Every routine on eight threads at once, while other threads end and start, gives what it gives on
// one. The thread sanitizer sees what they share.
#include <list>
#include <thread>

#include "support/HostRoutines.h"
#include "support/Random.h"

namespace {

struct Case {
  HostRoutine routine;
  std::vector<BSTR> arguments;
  Text expected;
};

// Each routine with some texts, which all threads share.
class Cases {
 public:
  Cases() {
    Random random;
    for (const HostRoutine& routine : hostRoutines()) {
      for (int i = 0; i < 20; ++i) {
        Texts texts(routine.strings);
        for (Text& text : texts) text = random.text(L"a :<BR>7", i % 5 == 0 ? 700 : 3);
        // It writes to its text, which is why no other thread may use it.
        if (!texts.empty() && routine.worksInPlace(texts)) continue;
        Case& added = cases_.emplace_back(Case{routine, {}, routine.expected(texts)});
        for (const Text& text : texts) added.arguments.push_back(owners_.emplace_back(text));
      }
    }
  }

  void callEach(std::size_t first) const {
    for (std::size_t i = 0; i < cases_.size(); ++i) {
      const auto& [routine, arguments, expected] = cases_[(first + i) % cases_.size()];
      EXPECT_EQ(routine.call(arguments.data()), expected) << routine.name;
    }
  }

 private:
  std::list<B> owners_;
  std::vector<Case> cases_;
};

void callExamples() {
  int32_t i, j;
  double x, xSecond, y;
#include "HeaderExamples.inc"
}

}  // namespace

TEST(Threads, EightAtOnce) {
  const Cases cases;
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i < 8; ++i) {
    // Each is a row of threads: one ends, the next starts, while the other seven call.
    threads.emplace_back([&cases, i] {
      for (std::size_t round = 0; round < 30; ++round) {
        std::thread([&] {
          cases.callEach(97 * i + 31 * round);
          callExamples();
        }).join();
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}
