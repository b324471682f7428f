// The wide buffers of the threads.
//
// Each thread that needs a buffer claims a slot and owns it until the thread ends. No code runs when a
// thread ends. Instead, a thread that gets its first buffer or another one asks the system which owners
// have ended, and releases their buffers. So calls from the destructors of a thread work and leak
// nothing, in any order. The system knows a main thread that ended by pthread_exit until the process ends.
//
// The usual ways to release memory at the end of a thread do not meet every condition of a host:
// - A pthread key: the host may have taken all of them; a call in the last round of key destructors
//   leaks; a copy of the library loaded by dlmopen overwrites the value of a host's key.
// - A thread_local object with a destructor: the C library ends the process if there is no memory to
//   register it, and a call after it was destroyed leaks.
// - A lock or a guard: a fork while another thread holds it leaves the child waiting forever.
#include "ThreadBuffer.h"

#include <unistd.h>

#include <atomic>
#include <bit>
#include <cerrno>
#include <cstdint>
#ifdef __APPLE__
#include <pthread.h>
#include <signal.h>
#else
#include <sys/syscall.h>
#endif

#ifdef __has_feature
#if __has_feature(thread_sanitizer)
#define __SANITIZE_THREAD__ 1
#endif
#endif

namespace {

// A larger buffer (above 4 MiB) is replaced when the thread's next text fits into this capacity.
constexpr std::size_t kMaxIdleCapacity = std::size_t{1} << 20;
constexpr std::size_t kMinCapacity = 256;

// A thread of this process or, after a fork, of the parent; or one of the values below.
using Owner = std::uint64_t;
constexpr Owner kUnowned = 0;  // free to be claimed; has no buffer
constexpr Owner kLocked = 1;   // a thread is asking whether the owner has ended

#ifdef __APPLE__

Owner currentThread() { return reinterpret_cast<Owner>(pthread_self()); }

[[maybe_unused]] bool doesNotExist(Owner thread) {
  return pthread_kill(reinterpret_cast<pthread_t>(thread), 0) == ESRCH;
}

#else

constexpr int kProcessShift = 32;

Owner currentThread() {
  return static_cast<Owner>(getpid()) << kProcessShift | static_cast<Owner>(syscall(SYS_gettid));
}

// A slot that was claimed before a fork names the parent process. It may be that of the thread that
// called fork, so the child never releases it.
[[maybe_unused]] bool doesNotExist(Owner thread) {
  const auto process = static_cast<pid_t>(thread >> kProcessShift);
  const auto id = static_cast<pid_t>(thread);
  return process == getpid() && syscall(SYS_tgkill, process, id, 0) != 0 && errno == ESRCH;
}

#endif

bool hasEnded(Owner thread) {
#ifdef __SANITIZE_THREAD__
  // The sanitizer does not know that the system orders the end of a thread before this answer, and
  // would report a race on the buffer.
  static_cast<void>(thread);
  return false;
#else
  const int savedErrno = errno;
  const bool ended = doesNotExist(thread);
  errno = savedErrno;
  return ended;
#endif
}

struct Slot {
  std::atomic<Owner> owner;
  wchar_t* units;
  std::size_t capacity;

  void releaseBuffer() {
    delete[] units;
    units = nullptr;
    capacity = 0;
  }
};

// The slots, in a list of blocks that only grows. The first block needs no memory from the heap.
struct Block {
  Slot slots[64];
  std::atomic<Block*> next;
};

constinit Block firstBlock{};

// Trivially destructible, so that calls during the end of a thread or of the process work.
constinit thread_local Slot* ownSlot = nullptr;

// Asks about at most kMaxAsked threads, since each question is a system call, and continues there the
// next time.
void releaseBuffersOfEndedThreads() {
  constexpr std::size_t kMaxAsked = 8;
  static constinit std::atomic<std::size_t> nextToAsk = 0;
  const std::size_t first = nextToAsk;
  std::size_t index = 0;
  std::size_t asked = 0;
  for (Block* block = &firstBlock; block != nullptr; block = block->next) {
    for (Slot& slot : block->slots) {
      Owner owner = slot.owner.load(std::memory_order_relaxed);
      if (index++ < first || owner == kUnowned || owner == kLocked) continue;
      if (asked++ == kMaxAsked) {
        nextToAsk = index - 1;
        return;
      }
      // The slot is locked before the system is asked. Otherwise, between the answer and the release,
      // another thread could release the slot, and a new thread with the same number could claim it.
      if (!slot.owner.compare_exchange_strong(owner, kLocked)) continue;
      const bool isEnded = hasEnded(owner);
      if (isEnded) slot.releaseBuffer();
      slot.owner.store(isEnded ? kUnowned : owner);
    }
  }
  nextToAsk = 0;
}

Block* appendBlock(Block* last) {
  Block* const added = new Block{};
  Block* next = nullptr;
  if (last->next.compare_exchange_strong(next, added)) return added;
  // Another thread was first.
  delete added;  // GCOVR_EXCL_LINE
  return next;   // GCOVR_EXCL_LINE
}

Slot* claimSlot() {
  const Owner thread = currentThread();
  for (Block* block = &firstBlock;;) {
    for (Slot& slot : block->slots) {
      Owner expected = kUnowned;
      if (slot.owner.load(std::memory_order_relaxed) != kUnowned) continue;
      if (slot.owner.compare_exchange_strong(expected, thread)) return &slot;
    }
    Block* const next = block->next;
    block = next != nullptr ? next : appendBlock(block);
  }
}

void replaceBuffer(std::size_t size) {
  releaseBuffersOfEndedThreads();
  if (ownSlot == nullptr) ownSlot = claimSlot();
  // Release the old buffer first, so that the thread never holds both.
  ownSlot->releaseBuffer();
  const std::size_t capacity = size <= kMinCapacity ? kMinCapacity : std::bit_ceil(size);
  ownSlot->units = new wchar_t[capacity];
  ownSlot->capacity = capacity;
}

// For leak checkers. Other threads may still run and keep their buffers.
[[gnu::destructor]] void releaseAtExit() {
  releaseBuffersOfEndedThreads();
  if (ownSlot != nullptr) ownSlot->releaseBuffer();
}

}  // namespace

wchar_t* threadBuffer(std::size_t size) {
  if (ownSlot == nullptr) {
    replaceBuffer(size);
  } else {
    const std::size_t capacity = ownSlot->capacity;
    if (size > capacity || (capacity > kMaxIdleCapacity && size <= kMaxIdleCapacity)) {
      replaceBuffer(size);
    }
  }
  return ownSlot->units;
}
