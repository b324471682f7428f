// Arguments on a page that cannot be written and that ends where nothing can be read: no routine
// reads behind the end of an argument or writes to one. One that does so ends the process, with
// lines that name the call and the argument.
#include <sys/mman.h>
#include <unistd.h>

#include <span>

#include "support/HostRoutines.h"

namespace {

// For each argument of a call a page, and behind it one that cannot be touched.
const auto kSize = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
constexpr std::size_t kArguments = 6;
char* const pages = static_cast<char*>(
    mmap(nullptr, 2 * kArguments * kSize, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));

// Places the units of an argument at the end of its page.
template <typename Unit>
Unit* hold(std::size_t argument, std::span<const Unit> units, bool mayBeWritten) {
  char* const page = pages + 2 * argument * kSize;
  if (mprotect(page, kSize, PROT_READ | PROT_WRITE) != 0) std::abort();
  Unit* const held = reinterpret_cast<Unit*>(page + kSize) - units.size();
  std::copy(units.begin(), units.end(), held);
  if (!mayBeWritten && mprotect(page, kSize, PROT_READ) != 0) std::abort();
  return held;
}

// A text with its final zero unit.
template <typename Unit>
Unit* hold(std::size_t argument, const std::basic_string<Unit>& text, bool mayBeWritten = false) {
  return hold(argument, std::span<const Unit>(text.c_str(), text.size() + 1), mayBeWritten);
}

template <typename Number>
Number* holdOne(std::size_t argument, Number number, bool mayBeWritten) {
  return hold(argument, std::span<const Number>(&number, 1), mayBeWritten);
}

std::string explain(const void* address) {
  const auto offset = static_cast<std::size_t>(static_cast<const char*>(address) - pages);
  const std::size_t page = offset / kSize;
  if (page >= 2 * kArguments) return "at an address outside the arguments";
  return (page % 2 == 1 ? "behind the end of argument " : "writing to argument ") +
         std::to_string(page / 2 + 1);
}
[[maybe_unused]] const bool isExplained = (explainFault = explain, true);

void check(const HostRoutine& routine, const Texts& texts) {
  const Text expected = routine.expected(texts);
  const bool inPlace = routine.worksInPlace(texts) && expected != texts[0];
  std::vector<BSTR> handles;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    handles.push_back(hold(i, narrow(texts[i]), inPlace && i == 0));
  }
  ASSERT_EQ(routine.call(handles.data()), expected) << routine.show(texts);
  if (inPlace) {
    ASSERT_EQ(widen(handles[0]), expected) << "the text after " << routine.show(texts);
  }
}

}  // namespace

TEST_EACH_HOST_ROUTINE(GuardPages) {
  Text text;
  for (std::size_t size = 0; size <= 300; ++size, text += L"aba:<BR> 7"[size % 10]) {
    // One argument after the other is of that length, and then all are.
    for (std::size_t i = 0; i <= routine.strings; ++i) {
      for (const Text other : {L"", L"a", L"b", L"US", L"aba"}) {
        Texts texts(routine.strings, i < routine.strings ? other : text);
        if (i < routine.strings) texts[i] = text;
        check(routine, texts);
        if (testing::Test::HasFatalFailure()) return;
      }
    }
  }
}

// A 16-bit text may begin anywhere in a block that a service reads at once. Here its first or last block
// is that of a page, without memory before or behind the page.
TEST(Services, GuardPages) {
  constexpr std::size_t kBlockUnits = 8;
  const std::u16string zeros(kSize / sizeof(char16_t), 0);
  char16_t* const page = hold(1, std::span(zeros), true);
  for (std::size_t size = 0; size <= 300; ++size) {
    const Text text(size, L'a');
    for (std::size_t gap = 0; gap < kBlockUnits; ++gap) {
      for (const std::size_t start : {gap, zeros.size() - size - 1 - gap}) {
        // Zero units before the text and none behind it: neither end may be taken for the other.
        std::fill_n(page, zeros.size(), u'\0');
        std::fill(std::fill_n(page + start, size, u'a') + 1, page + zeros.size(), u'x');
        BSTR handle = page + start;
        const auto describe = [&] {
          return "16-bit text of " + std::to_string(size) + " from unit " + std::to_string(start);
        };
        named(describe, [&] {
          EXPECT_EQ(wcslen16(handle), size) << describe();
          EXPECT_EQ(CW162W32(handle), text) << describe();
          EXPECT_EQ(convertBSTRtoWstring(handle), text) << describe();
          EXPECT_EQ(take(SysAllocString16(handle)), text) << describe();
        });
        if (testing::Test::HasFailure()) return;
      }
    }
  }
}

// Where a routine takes wide text by a pointer, and where it writes.
TEST(Replace, GuardPages) {
  for (std::size_t size = 0; size <= 300; ++size) {
    const Text pattern(size, L'a'), with(size, L'b');
    ASSERT_GIVES(Replace, L"-" + with + L"-", L"-" + pattern + L"-",
                 static_cast<const wchar_t*>(hold(0, pattern)),
                 static_cast<const wchar_t*>(hold(1, with)));
    ASSERT_GIVES(SysAllocString2, with, static_cast<const wchar_t*>(hold(0, with)));
  }
}

TEST(VB_SetFormat, WritesItsArrayAlone) {
  for (int32_t size = 0; size <= 300; ++size) {
    const std::vector<BSTR> unset(static_cast<std::size_t>(size));
    BSTR* const formats = hold(0, std::span(unset), true);
    named([&] { return showCall("VB_SetFormat", L"array", size, 2, -1); },
          [&] { VB_SetFormat(formats, size, 2, -1); });
    for (int32_t i = 0; i < size; ++i) ASSERT_EQ(take(formats[i]), L"0.0") << i << " of " << size;
  }
}

// What is only read in the direction at hand is not written.
TEST(LinearInterpol, AndQuadraticInterpolWriteTheirResultsAlone) {
  for (const HostBool forward : {QUVARDBS1C_TRUE, QUVARDBS1C_FALSE}) {
    double* const x = holdOne(2, 2.0, !forward);
    double* const second = holdOne(3, 7.0, !forward);
    double* const y = holdOne(4, 4.0, forward);
    EXPECT_GIVES(LinearInterpol, 0, 1, 3, 2, 6, x, y, forward);
    EXPECT_GIVES(QuadraticInterpol, 0, 1, 2, 4, 0, 0, 6, x, second, y, forward);
  }
}
