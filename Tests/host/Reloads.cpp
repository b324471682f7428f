// A host that loads, calls and unloads the library repeatedly while its threads live. The threads end
// after the last unload.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <barrier>
#include <thread>

#include "TestPaths.h"

namespace {

constexpr int kThreads = 8;
constexpr int kLoads = 4;

char16_t* (*trim)(char16_t*);
void (*release)(char16_t*);

void find(auto& function, void* library, const char* name) {
  function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(dlsym(library, name));
  ASSERT_NE(function, nullptr) << dlerror();
}

void callWithTextsOfManySizes(int load) {
  for (std::size_t blanks = 0; blanks < 600; blanks += 7) {
    std::u16string text = std::u16string(blanks, u' ') + u"x ";
    char16_t* const trimmed = trim(text.data());
    EXPECT_EQ(std::u16string(trimmed), u"x") << blanks << " blanks, load " << load;
    release(trimmed);
  }
}

}  // namespace

TEST(Threads, SurviveReloadsOfTheLibrary) {
  std::barrier barrier(kThreads + 1);
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back([&] {
      for (int load = 1; load <= kLoads; ++load) {
        barrier.arrive_and_wait();  // loaded
        callWithTextsOfManySizes(load);
        barrier.arrive_and_wait();  // all calls have returned
      }
      barrier.arrive_and_wait();  // unloaded
    });
  }
  for (int load = 1; load <= kLoads; ++load) {
    void* const library = dlopen(QUVARD_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library, nullptr) << dlerror();
    ASSERT_NO_FATAL_FAILURE(find(trim, library, "VB_StrLRTrim"));
    ASSERT_NO_FATAL_FAILURE(find(release, library, "releaseBSTR"));
    barrier.arrive_and_wait();
    barrier.arrive_and_wait();
    EXPECT_EQ(dlclose(library), 0) << dlerror();
    EXPECT_EQ(dlopen(QUVARD_LIBRARY, RTLD_NOW | RTLD_NOLOAD), nullptr)
        << "The library is still loaded.";
  }
  barrier.arrive_and_wait();
  for (std::thread& thread : threads) thread.join();
}
