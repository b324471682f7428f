// Host routines called where threads and the process end: from destructors of thread-local and
// static variables, of keys, and from what is registered with atexit. A program of its own, for these
// calls come after the tests of a test program.
#include <pthread.h>

#include <cstdio>
#include <cstdlib>
#include <thread>

#include "support/HostStrings.h"

namespace {

// Long enough for a buffer of its own size.
void call(const char* when, std::size_t length) {
  const Text blanks(length, L' '), text = blanks + L"x" + blanks;
  const B units(text);
  if (take(VB_StrLRTrim(units)) == L"x" && units.text() == text) return;
  std::fprintf(stderr, "VB_StrLRTrim %s: an x between %zu blanks did not give \"x\"\n", when,
               length);
  std::_Exit(1);
}

struct CallAtEnd {
  const char* when;
  ~CallAtEnd() { call(when, 3000); }
};

const CallAtEnd ofProcess{"from the destructor of a static variable"};

void useThread(pthread_key_t key) {
  thread_local const CallAtEnd ofThread{"from the destructor of a thread-local variable"};
  (void)ofThread;
  static int value = 0;
  pthread_setspecific(key, &value);
  call("on a thread", 300);
}

}  // namespace

__attribute__((destructor)) static void endProgram() { call("from a destructor function", 5000); }

int main() {
  std::atexit([] { call("from atexit, before the first call", 4000); });
  pthread_key_t key{};
  if (pthread_key_create(&key, [](void*) { call("from the destructor of a key", 2000); }) != 0)
    return 1;
  for (int i = 0; i < 3; ++i) std::thread(useThread, key).join();
  call("on the first thread", 10);
  std::atexit([] { call("from atexit, after the first call", 6000); });
  useThread(key);
}
