// Each allocation of each routine may fail: the routine throws std::bad_alloc, leaks nothing and leaves
// its arguments unchanged, and the next call works. Also how much the routines allocate.
#include <atomic>
#include <bit>
#include <cstdlib>
#include <new>

#include "support/HostRoutines.h"
#include "support/NewThread.h"

namespace {

std::atomic<long> allocationsUntilFailure = -1;  // negative: none fails
std::atomic<long> liveAllocations = 0;
std::atomic<long> allocations = 0;
std::atomic<std::size_t> allocatedBytes = 0;

}  // namespace

void* operator new(std::size_t size) {
  if (allocationsUntilFailure >= 0 && allocationsUntilFailure-- == 0) throw std::bad_alloc();
  void* const memory = std::malloc(std::max(size, std::size_t{1}));
  if (memory == nullptr) throw std::bad_alloc();
  ++liveAllocations;
  ++allocations;
  allocatedBytes += size;
  return memory;
}

// A sanitizer's operators for arrays do not call those above.
void* operator new[](std::size_t size) { return operator new(size); }

void operator delete(void* memory) noexcept {
  if (memory != nullptr) --liveAllocations;
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }
void operator delete[](void* memory) noexcept { operator delete(memory); }
void operator delete[](void* memory, std::size_t) noexcept { operator delete(memory); }

namespace {

using Call = std::function<Text()>;

// Makes the call once for each of its allocations, which fails, on a new thread, where QUVARDCR1C has no
// buffer yet. Returns the number of allocations.
long expectEachMayFail(const std::string& name, const Call& call,
                       const Strings& arguments = Strings()) {
  const Text expected = call();
  const Texts before = arguments.texts();  // VB_Replace may have changed its text
  // The buffer of the last thread that ended is released when a thread needs one.
  runOnNewThread(call);
  for (long failing = 0;; ++failing) {
    const long liveBefore = liveAllocations;
    bool hasFailed = false, worksAgain = false;
    runOnNewThread([&] {
      allocationsUntilFailure = failing;
      try {
        call();
      } catch (const std::bad_alloc&) {
        hasFailed = true;
      }
      allocationsUntilFailure = -1;
      worksAgain = call() == expected;
    });
    EXPECT_EQ(liveAllocations, liveBefore);
    EXPECT_TRUE(worksAgain);
    EXPECT_EQ(arguments.texts(), before);
    if (testing::Test::HasFailure()) ADD_FAILURE() << name << ", allocation " << failing;
    if (testing::Test::HasFailure() || !hasFailed) return failing;
  }
}

Text setHostFormats() {
  struct Formats {
    ~Formats() { std::for_each(std::begin(handles), std::end(handles), releaseBSTR); }
    BSTR handles[3] = {};
  } formats;
  VB_SetFormat(formats.handles, 3, 300, -1);
  return widen(formats.handles[2]);
}

// The allocations of a call, without the result, which QUVARDCR1C allocates. The buffer of the thread
// exists already.
long allocationsOf(const HostRoutine& routine, const Texts& texts) {
  const Strings strings(texts);
  routine.run(strings.handles());
  const long before = allocations;
  routine.run(strings.handles());
  return allocations - before - (routine.path->result.empty() ? 0 : 1);
}

const Text kPart = L"a, b: <BR> (1); ", kLonger = reference::Replace(Text(25, L'x'), L"x", kPart);

}  // namespace

TEST_EACH_HOST_ROUTINE(EachAllocationMayFail) {
  long failures = 0;
  for (const Text& text : {kPart, kLonger}) {
    for (const Texts& texts :
         {Texts{text, L",", L"US", L"ab", kLonger, text}, Texts{text, L",", L":", L"1", L"2", L"3"},
          Texts{text, L"a", L"a, b, c, d", L"", L"", L""}}) {
      const Strings strings(texts);
      failures += expectEachMayFail(
          routine.show(texts), [&] { return routine.call(strings.handles()); }, strings);
      if (routine.wide) {
        expectEachMayFail("wide " + routine.show(texts), [&] { return routine.wide(texts); });
      }
      if (testing::Test::HasFailure()) return;
    }
  }
  EXPECT_TRUE(failures > 0 || routine.path == &kHandlesAlone);
}

TEST(VB_SetFormat, EachAllocationForAnArrayMayFail) {
  expectEachMayFail("VB_SetFormat", setHostFormats);
}

TEST(SysAllocString2, EachAllocationMayFail) {
  expectEachMayFail("a surrogate pair", [] { return take(SysAllocString2(L"\x1F600")); });
}

TEST_EACH_HOST_ROUTINE(AllocatesNothingForShortTexts) {
  // These return or build a std::wstring.
  if (routine.path == &kObject || routine.path == &kToWideText) return;
  for (const Text& second : {Text(1, L','), Text(64, L'a')}) {
    Texts texts{L"", second, L"US", L"<", L"", L"12"};
    for (std::size_t size = 0; size <= 64; ++size, texts[0] += L"a,b:<BR> 7"[size % 10]) {
      if (routine.expected(texts).size() > 64) continue;
      EXPECT_EQ(allocationsOf(routine, texts), 0) << routine.show(texts);
    }
  }
}

TEST_EACH_HOST_ROUTINE(AllocatesOncePerLongText) {
  if (routine.path == &kObject) return;
  for (const std::size_t size : {65U, 129U, 1000U}) {
    const Text one(size, L'a'), other = Text(size - 1, L'a') + L"b";
    for (const Texts& texts : {Texts{one + other, one, other, other, other, one},
                               Texts{other + one, other, L"", one, other, one},
                               Texts{one, L"a", other, L"b", L"cd", one}}) {
      // A result that grows beyond its text doubles its capacity.
      const auto growth = std::bit_width(routine.expected(texts).size() / texts[0].size());
      EXPECT_LE(allocationsOf(routine, texts), static_cast<long>(routine.strings + 1 + growth))
          << routine.show(texts);
    }
  }
}

// 4 * (|s| + 2 * |chars| + 3) bytes; none up to 780 bytes or if `chars` is longer than `s`.
TEST(Allocations, OfRemoveCharAreAsItsContractSays) {
  for (const auto& [size, sizeOfChars, expected] :
       {row(1000, 16, 0), row(158, 17, 0), row(159, 17, 784), row(64, 64, 0), row(1000, 18, 4156),
        row(1000, 1000, 12012), row(1000, 1001, 0)}) {
    Text s(static_cast<std::size_t>(size), L'a');
    Text chars(static_cast<std::size_t>(sizeOfChars), L'a');
    chars.back() = L'b';
    const std::size_t before = allocatedBytes;
    const Text result = RemoveChar(std::move(s), std::move(chars));
    EXPECT_EQ(allocatedBytes - before, static_cast<std::size_t>(expected))
        << size << ", " << sizeOfChars;
  }
}

TEST(Allocations, NoneForATextThatIsMovedInAndDoesNotGrow) {
  const auto expectAllocations = [](long expected, const char* call, auto routine) {
    Text text(503, L'a');  // a capacity that libc++ does not round up
    const long before = allocations;
    const Text result = routine(text);
    EXPECT_EQ(allocations - before, expected) << call;
  };
#define MOVED(expected, call) expectAllocations(expected, #call, [](Text& s) { return call; })
  MOVED(0, StrLeft(std::move(s), 400));
  MOVED(0, StrRight(std::move(s), 400));
  MOVED(0, StrConcat(std::move(s), L"", L"", L"", L"", L""));
  MOVED(0, StrLRTrim(std::move(s)));
  MOVED(0, StrLCase(std::move(s)));
  MOVED(0, RemoveColon(std::move(s)));
  MOVED(0, RemoveNonNumericChar(std::move(s)));
  MOVED(0, cStrBetweenChrAndChr(std::move(s), L"a", L"a"));
  MOVED(0, LowerFirst(std::move(s), L"", 0));
  MOVED(0, UpperFirst(std::move(s)));
  MOVED(0, SingPlural(std::move(s), L"", 1));
  MOVED(0, QUVARDHTMLProcessor(std::move(s)));
  MOVED(1, Replace(std::move(s), L"aa", L"b"));
  MOVED(1, PStrP(std::move(s)));
  MOVED(1, StrConcat(std::move(s), L"b", L"", L"", L"", L""));
  MOVED(1, LocalAN(std::move(s), L"", L"US", 0, 0, 0));
  MOVED(2, Replace(std::move(s), L"a", L"bb"));
#undef MOVED
}

TEST(Allocations, OversizedThreadBufferIsReleased) {
  const B small(u"small");
  for (const auto& [length, expected] : {row((1U << 20) - 1, 0L), row(1U << 20, 1L)}) {
    const B text(Text(length, L'x'));
    CW162W32(text);
    const long before = allocations;
    CW162W32(text);
    CW162W32(small);
    EXPECT_EQ(allocations - before, expected) << length;
  }
}
