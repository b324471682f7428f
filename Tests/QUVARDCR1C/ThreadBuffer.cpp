// Hosts that load the library at run time and leave it little: no memory, no thread keys, calls from
// the last destructors of a thread, forks, a second copy. This program replaces malloc, so that it
// counts and fails the allocations of the loader and of the C library too.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <pthread.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <barrier>
#include <climits>
#include <functional>
#include <new>
#include <thread>
#include <vector>

#include "TestPaths.h"
#include "support/NewThread.h"

namespace {

std::atomic<long> allocationsLeft = -1;  // the next one to fail is at 0; below it none does
std::atomic<long> liveAllocations = 0;

void* count(void* memory) {
  if (memory != nullptr) ++liveAllocations;
  return memory;
}

bool isToFail() { return allocationsLeft >= 0 && allocationsLeft-- == 0; }

}  // namespace

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
void __libc_free(void* memory);

// Without default visibility the libraries would not see these definitions.
#pragma GCC visibility push(default)
void* malloc(std::size_t size) { return isToFail() ? nullptr : count(__libc_malloc(size)); }
void* calloc(std::size_t n, std::size_t size) {
  return isToFail() ? nullptr : count(__libc_calloc(n, size));
}
void* realloc(void* memory, std::size_t size) {
  if (isToFail()) return nullptr;
  void* const moved = __libc_realloc(memory, size);
  return memory == nullptr ? count(moved) : moved;
}
void free(void* memory) {
  if (memory != nullptr) --liveAllocations;
  __libc_free(memory);
}
#pragma GCC visibility pop
}

namespace {

using Trim = char16_t* (*)(char16_t*);
using Release = void (*)(char16_t*);

struct Library {
  explicit Library(void* handle)
      : trim(reinterpret_cast<Trim>(dlsym(handle, "VB_StrLRTrim"))),
        release(reinterpret_cast<Release>(dlsym(handle, "releaseBSTR"))) {}

  // Trims an x between blanks. Returns whether the result is "x"; throws what the routine throws.
  bool call(std::size_t blanks) const {
    std::vector<char16_t> text(blanks, u' ');
    text.insert(text.end(), {u'x', u' ', 0});
    return callOn(text.data());
  }
  bool callOn(char16_t* text) const {
    char16_t* const result = trim(text);
    const bool isRight = result[0] == u'x' && result[1] == 0;
    release(result);
    return isRight;
  }

  Trim trim;
  Release release;
};

Library load() {
  void* const handle = dlopen(QUVARD_LIBRARY, RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) throw std::runtime_error(dlerror());
  return Library(handle);
}

// The allocations that are alive after many threads have called, beyond those after a few.
long allocationsKeptBy(const std::function<void()>& work) {
  for (int i = 0; i < 3; ++i) runOnNewThread(work);
  const long before = liveAllocations;
  for (int i = 0; i < 50; ++i) runOnNewThread(work);
  return liveAllocations - before;
}

}  // namespace

TEST(ThreadBuffer, EachAllocationOfAFirstCallMayFail) {
  const Library library = load();
  char16_t text[] = u"  x  ";
  for (long failing = 0;; ++failing) {
    bool isRight = false, hasFailed = false;
    runOnNewThread([&] {
      allocationsLeft = failing;
      try {
        isRight = library.callOn(text);
      } catch (const std::bad_alloc&) {
        hasFailed = true;
      }
      allocationsLeft = -1;
    });
    ASSERT_TRUE(isRight || hasFailed) << "allocation " << failing << " failed";
    if (!hasFailed) {
      EXPECT_EQ(failing, 2) << "allocations: the buffer of the thread and the result";
      return;
    }
  }
}

TEST(ThreadBuffer, NeedsNoThreadKey) {
  runOnNewThread([] {});  // libc++ creates a key of its own for the first thread
  std::vector<pthread_key_t> keys;
  for (pthread_key_t key; pthread_key_create(&key, nullptr) == 0;) keys.push_back(key);
  const Library library = load();
  EXPECT_EQ(allocationsKeptBy([&] { EXPECT_TRUE(library.call(300)); }), 0);
  for (const pthread_key_t key : keys) pthread_key_delete(key);
}

namespace {

const Library* libraryOfDestructor;
pthread_key_t destructorKey;

// Calls the library in each round of key destructors, of which there are PTHREAD_DESTRUCTOR_ITERATIONS.
void callInEachRound(void* round) {
  auto& left = *static_cast<int*>(round);
  EXPECT_TRUE(libraryOfDestructor->call(300));
  if (--left > 0) pthread_setspecific(destructorKey, round);
}

}  // namespace

TEST(ThreadBuffer, CallsInTheLastRoundOfKeyDestructorsLeakNothing) {
  const Library library = load();
  libraryOfDestructor = &library;
  EXPECT_TRUE(library.call(
      300));  // a key of the library would be created, and destroyed, before that below
  ASSERT_EQ(pthread_key_create(&destructorKey, callInEachRound), 0);
  EXPECT_EQ(allocationsKeptBy([] {
              static int left;
              left = PTHREAD_DESTRUCTOR_ITERATIONS;
              pthread_setspecific(destructorKey, &left);
            }),
            0);
}

TEST(ThreadBuffer, LongTextOfAnEndedThreadIsReleased) {
  const Library library = load();
  runOnNewThread([&] { EXPECT_TRUE(library.call(300)); });
  const long before = liveAllocations;
  for (int i = 0; i < 8; ++i) {
    runOnNewThread([&] { EXPECT_TRUE(library.call(3'000'000)); });
    EXPECT_EQ(liveAllocations, before) << "after " << i + 1 << " threads";
  }
}

TEST(ThreadBuffer, HundredsOfThreadsAtOnceHaveTheirOwn) {
  constexpr int kThreads = 300;
  const Library library = load();
  std::barrier allHaveCalled(kThreads);
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back([&] {
      for (int round = 0; round < 3; ++round) {
        EXPECT_TRUE(library.call(300));
        allHaveCalled.arrive_and_wait();
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}

TEST(ThreadBuffer, ForkDuringFirstCallsLeavesAWorkingChild) {
  const Library library = load();
  std::atomic<bool> isDone = false;
  std::thread caller([&] {
    while (!isDone) std::thread([&] { EXPECT_TRUE(library.call(300)); }).join();
  });
  for (int i = 0; i < 200 && !HasFailure(); ++i) {
    const pid_t child = fork();
    if (child == 0) {
      alarm(20);  // ends a child that waits forever
      const bool isRight = library.call(300) && library.call(1000);
      _exit(isRight ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0) << "of child " << i;
  }
  isDone = true;
  caller.join();
}

TEST(ThreadBuffer, SecondCopyLeavesTheKeysOfTheHostAlone) {
  std::vector<pthread_key_t> keys(16);
  for (pthread_key_t& key : keys) {
    ASSERT_EQ(pthread_key_create(&key, nullptr), 0);
    pthread_setspecific(key, &key);
  }
  void* const copy = dlmopen(LM_ID_NEWLM, QUVARD_LIBRARY, RTLD_NOW | RTLD_LOCAL);
  ASSERT_NE(copy, nullptr) << dlerror();
  EXPECT_TRUE(Library(copy).call(300));
  for (pthread_key_t& key : keys) EXPECT_EQ(pthread_getspecific(key), &key) << "of key " << key;
}
