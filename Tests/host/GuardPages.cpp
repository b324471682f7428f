// Arguments on a page that cannot be written and that ends where nothing can be read: no routine
// reads behind the end of an argument or writes to one. One that does so ends the process, with a
// line that names the routine and the argument.
#include <sys/mman.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
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

std::string calling;  // the routine, and what it is given

void explain(int signal, siginfo_t* fault, void*) {
  const auto page = static_cast<std::size_t>(static_cast<char*>(fault->si_addr) - pages) / kSize;
  const char* const what = page >= 2 * kArguments ? "touches other memory, no"
                           : page % 2 == 1        ? "goes beyond the end of"
                                                  : "writes to";
  std::fprintf(stderr, "%s: %s argument %zu\n", calling.c_str(), what, page / 2 + 1);
  std::signal(signal, SIG_DFL);  // the fault comes again, and ends the process
}

class GuardPages : public testing::Test {
 protected:
  GuardPages() {
    struct sigaction action = {};
    action.sa_sigaction = explain;
    action.sa_flags = SA_SIGINFO;
    for (const int signal : {SIGSEGV, SIGBUS}) sigaction(signal, &action, nullptr);
  }
  ~GuardPages() override {
    for (const int signal : {SIGSEGV, SIGBUS}) std::signal(signal, SIG_DFL);
  }
};

void check(const HostRoutine& routine, const Texts& texts) {
  calling = routine.show(texts);
  const Text expected = routine.expected(texts);
  const bool inPlace = routine.worksInPlace(texts) && expected != texts[0];
  std::vector<BSTR> handles;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    handles.push_back(hold(i, narrow(texts[i]), inPlace && i == 0));
  }
  ASSERT_EQ(routine.call(handles.data()), expected) << calling;
  if (inPlace) {
    ASSERT_EQ(widen(handles[0]), expected) << calling;
  }
}

}  // namespace

TEST_F(GuardPages, TextsOfEveryLength) {
  for (const HostRoutine& routine : hostRoutines()) {
    Text text;
    for (std::size_t size = 0; size <= 300; ++size, text += L"aba:<BR> 7"[size % 10]) {
      // One argument after the other is of that length, and then all are.
      for (std::size_t i = 0; i <= routine.strings; ++i) {
        for (const Text other : {L"", L"a", L"b", L"US", L"aba"}) {
          Texts texts(routine.strings, i < routine.strings ? other : text);
          if (i < routine.strings) texts[i] = text;
          check(routine, texts);
          if (HasFatalFailure()) return;
        }
      }
    }
  }
}

// Where a routine takes wide units by a pointer, and where it writes.
TEST_F(GuardPages, Pointers) {
  for (std::size_t size = 0; size <= 300; ++size) {
    calling = "Replace, SysAllocString2 of texts of " + std::to_string(size);
    const Text pattern(size, L'a'), with(size, L'b');
    ASSERT_EQ(Replace(L"-" + pattern + L"-", hold(0, pattern), hold(1, with)), L"-" + with + L"-");
    ASSERT_EQ(take(SysAllocString2(hold(0, with))), with);
    calling = "VB_SetFormat of an array of " + std::to_string(size);
    const std::vector<BSTR> unset(size);
    BSTR* const formats = hold(0, std::span(unset), true);
    VB_SetFormat(formats, static_cast<int32_t>(size), 2, -1);
    for (std::size_t i = 0; i < size; ++i) ASSERT_EQ(take(formats[i]), L"0.0");
  }
  // What is only read in the direction at hand is not written.
  for (const HostBool forward : {QUVARDBS1C_TRUE, QUVARDBS1C_FALSE}) {
    calling = "LinearInterpol, QuadraticInterpol, forward " + std::to_string(forward);
    double* const x = holdOne(2, 2.0, !forward);
    double* const second = holdOne(3, 7.0, !forward);
    double* const y = holdOne(4, 4.0, forward);
    EXPECT_EQ(LinearInterpol(1, 3, 2, 6, x, y, forward), 0);
    EXPECT_EQ(QuadraticInterpol(1, 2, 4, 0, 0, 6, x, second, y, forward), 0);
  }
}
