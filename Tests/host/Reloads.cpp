// A host that loads the library, calls it on eight threads and unloads it, again and again, while
// those threads live; they end after it was unloaded for the last time.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <atomic>
#include <barrier>
#include <thread>

#include "TestPaths.h"

namespace {

constexpr int kThreads = 8;
constexpr int kLoads = 4;

std::atomic<char16_t* (*)(char16_t*)> trim;
std::atomic<void (*)(char16_t*)> release;

template <typename Function>
void find(std::atomic<Function>& function, void* library, const char* name) {
  function = reinterpret_cast<Function>(dlsym(library, name));
  ASSERT_NE(function, nullptr) << dlerror();
}

void call(int load) {
  for (std::size_t length = 0; length < 600; length += 7) {
    std::u16string text = std::u16string(length, u' ') + u"x ";
    char16_t* const trimmed = trim.load()(text.data());
    EXPECT_EQ(std::u16string(trimmed), u"x")
        << "VB_StrLRTrim of an x behind " << length << " blanks, loaded " << load << " times";
    release.load()(trimmed);
  }
}

}  // namespace

TEST(Threads, LiveOnWhereTheLibraryIsLoadedAgain) {
  std::barrier atSameStep(kThreads + 1);
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back([&] {
      for (int load = 1; load <= kLoads; ++load) {
        atSameStep.arrive_and_wait();  // it is loaded
        call(load);
        atSameStep.arrive_and_wait();  // nobody calls it
      }
      atSameStep.arrive_and_wait();  // it is unloaded
    });
  }
  for (int load = 1; load <= kLoads; ++load) {
    void* const library = dlopen(QUVARD_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library, nullptr) << dlerror();
    ASSERT_NO_FATAL_FAILURE(find(trim, library, "VB_StrLRTrim"));
    ASSERT_NO_FATAL_FAILURE(find(release, library, "releaseBSTR"));
    atSameStep.arrive_and_wait();
    atSameStep.arrive_and_wait();
    EXPECT_EQ(dlclose(library), 0) << dlerror();
    EXPECT_EQ(dlopen(QUVARD_LIBRARY, RTLD_NOW | RTLD_NOLOAD), nullptr) << "It is not unloaded.";
  }
  atSameStep.arrive_and_wait();
  for (std::thread& thread : threads) thread.join();
}
