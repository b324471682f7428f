// Names the call at hand where a failure unwinds or ends the process: an exception out of a routine, a
// signal, a report of a sanitizer.
#ifndef TESTS_SUPPORT_CURRENTCALL_H
#define TESTS_SUPPORT_CURRENTCALL_H

#include <new>
#include <stdexcept>
#include <string>

// The innermost call of each thread. It has a function that describes it, not the description,
// because most calls never need one.
class CurrentCall {
 public:
  // `describe` must outlive the object.
  template <typename Describe>
  explicit CurrentCall(const Describe& describe)
      : CurrentCall(&describe, [](const void* d) -> std::string {
          return (*static_cast<const Describe*>(d))();
        }) {}
  CurrentCall(const CurrentCall&) = delete;
  CurrentCall& operator=(const CurrentCall&) = delete;
  ~CurrentCall();

  static void print();  // to standard error, if there is one

 private:
  CurrentCall(const void* describe, std::string (*text)(const void*));

  const void* const describe_;
  std::string (*const text_)(const void*);
  const CurrentCall* const outer_;
};

// A failed allocation, named. Tests that let allocations fail expect this type.
struct BadAlloc : std::bad_alloc {
  explicit BadAlloc(std::string text) : call(std::move(text)) {}
  const char* what() const noexcept override { return call.c_str(); }
  std::string call;
};

// Makes a call; an exception out of it names it.
auto named(const auto& describe, const auto& call) {
  const CurrentCall current(describe);
  try {
    return call();
  } catch (const std::bad_alloc&) {
    throw BadAlloc(describe() + "\n  throws std::bad_alloc");
  } catch (const std::exception& exception) {
    throw std::runtime_error(describe() + "\n  throws " + exception.what());
  }
}

// Where a fault came from, as a test that expects faults explains it; "" if it cannot.
extern std::string (*explainFault)(const void* address);

#endif
