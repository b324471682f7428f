// A host that loads the library, calls it on eight threads and unloads it, again and again, while
// those threads live; they end after it was unloaded for the last time.
#include <dlfcn.h>

#include <atomic>
#include <barrier>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr int kThreads = 8;
constexpr int kLoads = 4;

using Routine = char16_t* (*)(char16_t*);
using Release = void (*)(char16_t*);
std::atomic<Routine> trim;
std::atomic<Release> release;

[[noreturn]] void fail(const std::string& what) {
  std::fprintf(stderr, "%s\n", what.c_str());
  std::_Exit(1);
}

template <typename Function>
void find(std::atomic<Function>& function, void* library, const char* name) {
  void* const address = dlsym(library, name);
  if (address == nullptr) fail(dlerror());
  function = reinterpret_cast<Function>(address);
}

void call(int load) {
  for (std::size_t length = 0; length < 600; length += 7) {
    std::u16string text = std::u16string(length, u' ') + u"x ";
    char16_t* const trimmed = trim.load()(text.data());
    if (std::u16string(trimmed) != u"x") {
      fail("loaded " + std::to_string(load) + " times, VB_StrLRTrim of an x behind " +
           std::to_string(length) + " blanks does not give \"x\"");
    }
    release.load()(trimmed);
  }
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) fail("usage: QUVARDReloads LIBRARY");
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
    void* const library = dlopen(arguments[1], RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) fail(dlerror());
    find(trim, library, "VB_StrLRTrim");
    find(release, library, "releaseBSTR");
    atSameStep.arrive_and_wait();
    atSameStep.arrive_and_wait();
    if (dlclose(library) != 0) fail(dlerror());
    if (dlopen(arguments[1], RTLD_NOW | RTLD_NOLOAD) != nullptr) fail("it is not unloaded");
  }
  atSameStep.arrive_and_wait();
  for (std::thread& thread : threads) thread.join();
}
