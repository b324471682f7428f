#include "support/CurrentCall.h"

#include <csignal>
#include <cstdio>

std::string (*explainFault)(const void* address) = nullptr;

namespace {

void onSignal(int signal, siginfo_t* fault, void*) {
  std::signal(signal, SIG_DFL);  // the fault occurs again and ends the process
  std::fprintf(stderr, "Signal %d", signal);
  if (explainFault != nullptr && (signal == SIGSEGV || signal == SIGBUS)) {
    std::fprintf(stderr, ", %s", explainFault(fault->si_addr).c_str());
  }
  std::fputs("\n", stderr);
  CurrentCall::print();
}

// A sanitizer has its own handlers, which call the functions below.
[[maybe_unused]] const bool isHandled = [] {
  for (const int signal : {SIGSEGV, SIGBUS, SIGABRT, SIGFPE, SIGILL}) {
    struct sigaction action = {}, before = {};
    action.sa_sigaction = onSignal;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    sigaction(signal, nullptr, &before);
    if (before.sa_handler == SIG_DFL) sigaction(signal, &action, nullptr);
  }
  return true;
}();

}  // namespace

void CurrentCall::print() {
  if (current != nullptr) std::fprintf(stderr, "Failed in %s\n", current->describe_().c_str());
}

extern "C" {
void __asan_on_error();
void __asan_on_error() { CurrentCall::print(); }
void __ubsan_on_report();
void __ubsan_on_report() { CurrentCall::print(); }
}
