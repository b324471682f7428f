// Each allocation of each host routine fails in turn: the failure arrives as std::bad_alloc and
// nothing leaks. No allocation is written beyond its end.
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <list>
#include <new>

#include "support/HostRoutines.h"

namespace {

std::atomic<long> allocationsLeft = -1;  // the next one to fail is at 0; below it none does
std::atomic<long> liveAllocations = 0;
std::atomic<long> allocations = 0;

// In front of the memory stands its size, and behind it the same once more.
constexpr std::size_t kFront = __STDCPP_DEFAULT_NEW_ALIGNMENT__;

void release(void* memory) {
  if (memory == nullptr) return;
  char* const front = static_cast<char*>(memory) - kFront;
  std::size_t size;
  std::memcpy(&size, front, sizeof size);
  if (std::memcmp(front + kFront + size, &size, sizeof size) != 0) std::abort();
  std::free(front);
  --liveAllocations;
}

// What the library allocates in a call; the sibling library allocates the result, and nothing else
// once the buffer of the thread is there.
long allocationsOf(const HostRoutine& routine, const Texts& texts) {
  std::list<B> owners;
  std::vector<BSTR> handles;
  for (const Text& text : texts) handles.push_back(owners.emplace_back(text));
  routine.run(handles.data());
  const long before = allocations;
  routine.run(handles.data());
  return allocations - before - (routine.path->result.empty() ? 0 : 1);
}

}  // namespace

void* operator new(std::size_t size) {
  if (allocationsLeft >= 0 && allocationsLeft-- == 0) throw std::bad_alloc();
  char* const front = static_cast<char*>(std::malloc(kFront + size + sizeof size));
  if (front == nullptr) throw std::bad_alloc();
  ++liveAllocations;
  ++allocations;
  std::memcpy(front, &size, sizeof size);
  std::memcpy(front + kFront + size, &size, sizeof size);
  return front + kFront;
}

// Those of arrays too: a sanitizer's do not come here by themselves.
void* operator new[](std::size_t size) { return operator new(size); }

void operator delete(void* memory) noexcept { release(memory); }
void operator delete(void* memory, std::size_t) noexcept { release(memory); }
void operator delete[](void* memory) noexcept { release(memory); }
void operator delete[](void* memory, std::size_t) noexcept { release(memory); }

TEST(Allocations, EachMayFail) {
  const B text(u"Some <BR> words: (that) have 12 units, too"), language(u"US");
  const BSTR handles[] = {text, text, language, text, text, text};
  for (const HostRoutine& routine : hostRoutines()) {
    SCOPED_TRACE(routine.name);
    const Text expected = routine.call(handles);  // also makes the thread's wide buffer
    const long liveBefore = liveAllocations;
    bool failed = true;
    for (long failing = 0; failed; ++failing) {
      allocationsLeft = failing;
      try {
        EXPECT_EQ(routine.call(handles), expected);
        EXPECT_TRUE(failing > 0 || routine.path == &kHandlesAlone) << "nothing was allocated";
        failed = false;
      } catch (const std::bad_alloc&) {
      }
      allocationsLeft = -1;
      ASSERT_EQ(liveAllocations, liveBefore) << failing;
    }
  }
}

TEST(Allocations, NoneForTextsOfUpTo64Units) {
  for (const HostRoutine& routine : hostRoutines()) {
    if (routine.path == &kObject || routine.path == &kToWideText) continue;  // made of strings
    for (std::size_t size = 0; size <= 64; ++size) {
      Texts texts{L"", L",", L"US", L"<", L"", L"12"};
      while (texts[0].size() < size) texts[0].push_back(L"a,b:<BR> 7"[texts[0].size() % 10]);
      if (routine.expected(texts).size() > 64) continue;
      EXPECT_EQ(allocationsOf(routine, texts), 0) << routine.name << " with a text of " << size;
    }
  }
}

TEST(Allocations, OneForEachLongTextAndItsResult) {
  for (const HostRoutine& routine : hostRoutines()) {
    if (routine.path == &kObject) continue;
    for (const std::size_t size : {65U, 129U, 10000U}) {
      const Text one(size, L'a'), other = Text(size - 1, L'a') + L"b";
      for (const Texts& texts : {Texts{one + other, one, other, other, other, one},
                                 Texts{other + one, other, L"", one, other, one},
                                 Texts{one, L"a", other, L"b", L"cd", one}}) {
        const auto limit = static_cast<long>(routine.strings) + 1;
        EXPECT_LE(allocationsOf(routine, texts), limit)
            << routine.name << " with texts of " << size;
      }
    }
  }
}
