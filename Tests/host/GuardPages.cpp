// Arguments on a page that cannot be written and that ends where nothing can be read: no routine
// reads behind the end of an argument or writes to one. One that does so ends the process, with a
// line that names the routine and the argument.
#include <sys/mman.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <span>

#include "support/HostRoutines.h"

namespace {

class GuardedPage {
 public:
  GuardedPage()
      : start_(static_cast<char*>(
            mmap(nullptr, 2 * kSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0))) {
    if (start_ == MAP_FAILED || mprotect(start_ + kSize, kSize, PROT_NONE) != 0) std::abort();
  }

  // The units at the end of the page.
  template <typename Unit>
  Unit* hold(std::span<const Unit> units, bool mayBeWritten) {
    protect(PROT_READ | PROT_WRITE);
    Unit* const held = reinterpret_cast<Unit*>(start_ + kSize) - units.size();
    std::copy(units.begin(), units.end(), held);
    if (!mayBeWritten) protect(PROT_READ);
    return held;
  }
  template <typename Unit>
  Unit* hold(const std::basic_string<Unit>& text, bool mayBeWritten = false) {
    return hold(std::span<const Unit>(text.c_str(), text.size() + 1), mayBeWritten);
  }
  double* hold(double value, bool mayBeWritten) {
    return hold(std::span<const double>(&value, 1), mayBeWritten);
  }

  bool has(const void* address) const { return address >= start_ && address < start_ + 2 * kSize; }
  bool hasBehind(const void* address) const { return address >= start_ + kSize; }

 private:
  void protect(int access) {
    if (mprotect(start_, kSize, access) != 0) std::abort();
  }

  inline static const auto kSize = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
  char* const start_;
};

// One for each argument of a call.
std::array<GuardedPage, 6> pages;
std::string calling;  // the routine, and what it is given

void explain(int signal, siginfo_t* fault, void*) {
  const char* what = "touches other memory than its arguments";
  std::size_t argument = 0;
  for (std::size_t i = 0; i < pages.size(); ++i) {
    if (!pages[i].has(fault->si_addr)) continue;
    argument = i + 1;
    what = pages[i].hasBehind(fault->si_addr) ? "goes beyond the end of" : "writes to";
  }
  std::fprintf(stderr, "%s: %s argument %zu\n", calling.c_str(), what, argument);
  std::signal(signal, SIG_DFL);  // the fault comes again, and ends the process
}

class GuardPages : public testing::Test {
 protected:
  void SetUp() override {
    struct sigaction action = {};
    action.sa_sigaction = explain;
    action.sa_flags = SA_SIGINFO;
    for (const int signal : {SIGSEGV, SIGBUS}) sigaction(signal, &action, nullptr);
  }
  void TearDown() override {
    for (const int signal : {SIGSEGV, SIGBUS}) std::signal(signal, SIG_DFL);
  }
};

void check(const HostRoutine& routine, const Texts& texts) {
  calling = routine.name + " of texts of";
  for (const Text& text : texts) calling.append(" ").append(std::to_string(text.size()));
  const Text expected = routine.expected(texts);
  const bool inPlace = routine.worksInPlace(texts) && expected != texts[0];
  std::vector<BSTR> handles;
  for (const Text& text : texts) {
    const std::size_t i = handles.size();
    handles.push_back(pages[i].hold(narrow(text), inPlace && i == 0));
  }
  ASSERT_EQ(routine.call(handles.data()), expected) << calling;
  if (inPlace) {
    ASSERT_EQ(widen(handles[0]), expected) << calling;
  }
}

}  // namespace

TEST_F(GuardPages, TextsOfEveryLength) {
  const Text units = L"aba:<BR> 7";
  for (const HostRoutine& routine : hostRoutines()) {
    for (std::size_t size = 0; size <= 300; ++size) {
      Text text;
      while (text.size() < size) text.push_back(units[text.size() % units.size()]);
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
    ASSERT_EQ(Replace(L"-" + pattern + L"-", pages[0].hold(pattern), pages[1].hold(with)),
              L"-" + with + L"-");
    ASSERT_EQ(take(SysAllocString2(pages[0].hold(with))), with);
    calling = "VB_SetFormat of an array of " + std::to_string(size);
    const std::vector<BSTR> unset(size);
    BSTR* const formats = pages[0].hold(std::span(unset), true);
    VB_SetFormat(formats, static_cast<int32_t>(size), 2, -1);
    for (std::size_t i = 0; i < size; ++i) ASSERT_EQ(take(formats[i]), L"0.0");
  }
  calling = "SwapLng, SwapDbl, SwapStr";
  const auto expectSwap = [](auto routine, auto a, auto b) {
    auto* const first = pages[0].hold(std::span<const decltype(a)>(&a, 1), true);
    auto* const second = pages[1].hold(std::span<const decltype(b)>(&b, 1), true);
    routine(first, second);
    EXPECT_EQ(std::pair(*first, *second), std::pair(b, a));
  };
  expectSwap(SwapLng, 1, 2);
  expectSwap(SwapDbl, 1.0, 2.0);
  expectSwap(SwapStr, BSTR{}, pages[2].hold(u"text"s));
  // What is only read in the direction at hand is not written.
  for (const HostBool forward : {QUVARDBS1C_TRUE, QUVARDBS1C_FALSE}) {
    calling = "LinearInterpol, QuadraticInterpol, forward " + std::to_string(forward);
    double* const x = pages[2].hold(2, !forward);
    double* const second = pages[3].hold(7, !forward);
    double* const y = pages[4].hold(4, forward);
    EXPECT_EQ(LinearInterpol(1, 3, 2, 6, x, y, forward), 0);
    EXPECT_EQ(QuadraticInterpol(1, 2, 4, 0, 0, 6, x, second, y, forward), 0);
  }
}
