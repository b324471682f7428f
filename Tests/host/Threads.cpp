// Every routine on eight threads at once, while threads start and end. The thread sanitizer reports data
// that the calls share.
#include <thread>

#include "fuzz/Checks.h"

TEST(Threads, CallHostRoutinesOnTheSameStrings) {
  Random random;
  for (int i = 0; i < 500; ++i) ASSERT_TRUE(checkSequence(random, 8)) << "in sequence " << i;
}

TEST(Threads, CallEveryExampleOfTheHeader) {
  std::vector<std::thread> threads;
  while (threads.size() < 8) {
    threads.emplace_back([] {
      int32_t i, j;
      double x, xSecond, y;
#define EXAMPLE(routine, ...) __VA_ARGS__
      for (int round = 0; round < 2000; ++round) {
#include "HeaderExamples.inc"
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}
