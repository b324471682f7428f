// Names the current call of a routine when the process fails: by an exception, a signal or the report of
// a sanitizer.
#ifndef TESTS_SUPPORT_CURRENTCALL_H
#define TESTS_SUPPORT_CURRENTCALL_H

#include <functional>
#include <new>
#include <string>

// While an object lives, its thread is in the call that `describe` describes. Calls nest.
class CurrentCall {
 public:
  // `describe` outlives the object. It runs only if the call fails.
  explicit CurrentCall(const auto& describe) : describe_(std::cref(describe)), outer_(current) {
    current = this;
  }
  CurrentCall(const CurrentCall&) = delete;
  CurrentCall& operator=(const CurrentCall&) = delete;
  ~CurrentCall() { current = outer_; }

  // Prints the innermost call to standard error, if there is one.
  static void print();

 private:
  static inline thread_local const CurrentCall* current = nullptr;

  const std::function<std::string()> describe_;
  const CurrentCall* const outer_;
};

// Makes a call. `describe` names it in a failure, except std::bad_alloc, which some tests provoke.
auto named(const auto& describe, const auto& call) {
  const CurrentCall current(describe);
  try {
    return call();
  } catch (const std::bad_alloc&) {
    throw;
  } catch (...) {
    CurrentCall::print();
    throw;
  }
}

// Explains an invalid access to an address, in a test that expects it; otherwise null.
extern std::string (*explainFault)(const void* address);

#endif
