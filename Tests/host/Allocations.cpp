// Each allocation of each host routine fails in turn: the failure arrives as std::bad_alloc and
// nothing leaks.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>

#include "support/HostRoutines.h"

namespace {

std::atomic<long> allocationsLeft = -1;  // the next one to fail is at 0; below it none does
std::atomic<long> liveAllocations = 0;

void release(void* memory) {
  if (memory != nullptr) --liveAllocations;
  std::free(memory);
}

}  // namespace

void* operator new(std::size_t size) {
  if (allocationsLeft >= 0 && allocationsLeft-- == 0) throw std::bad_alloc();
  void* const memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  ++liveAllocations;
  return memory;
}

void operator delete(void* memory) noexcept { release(memory); }
void operator delete(void* memory, std::size_t) noexcept { release(memory); }

namespace {

TEST(Allocations, EachMayFail) {
  const B text(u"Some <BR> words: (that) have 12 units, too");
  const B language(u"US");
  for (const HostRoutine& routine : hostRoutines()) {
    SCOPED_TRACE(routine.name);
    const BSTR handles[] = {text, text, language, text, text, text};
    const std::wstring expected = routine.call(handles);  // also makes the thread's wide buffer
    bool failed = true;
    for (long failing = 0; failed; ++failing) {
      ASSERT_LT(failing, 1000);
      const long liveBefore = liveAllocations;
      failed = false;
      allocationsLeft = failing;
      try {
        const std::wstring result = routine.call(handles);
        allocationsLeft = -1;
        EXPECT_EQ(result, expected);
        EXPECT_GT(failing, 0) << "nothing was allocated";
      } catch (const std::bad_alloc&) {
        failed = true;
      }
      allocationsLeft = -1;
      ASSERT_EQ(liveAllocations, liveBefore) << failing;
    }
  }
}

}  // namespace
