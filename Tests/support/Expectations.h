// Expectations whose failures tell the routine, its arguments, what it gives and what was expected.
#ifndef TESTS_SUPPORT_EXPECTATIONS_H
#define TESTS_SUPPORT_EXPECTATIONS_H

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <iomanip>
#include <sstream>
#include <tuple>
#include <type_traits>
#include <utility>

#include "support/CurrentCall.h"
#include "support/Doubles.h"
#include "support/HostStrings.h"

// A row of a table, whose columns are named where it is gone through:
//   for (const auto& [text, expected] : {row(L"a", L"A"), row(L"b", L"B")})
template <typename... Columns>
auto row(Columns... columns) {
  return std::tuple(columns...);
}

// A value as a failure shows it; of a long text the units around a place.
inline constexpr std::size_t kAround = 30;
inline std::string show(const Text& text, std::size_t place = 0) {
  if (text == kNullHandle) return "null";
  const std::size_t start = place < kAround ? 0 : std::min(place, text.size()) - kAround;
  const std::string units = testing::PrintToString(text.substr(start, 2 * kAround));
  if (text.size() <= 2 * kAround) return units;
  return "from unit " + std::to_string(start) + " of " + std::to_string(text.size()) + ": " + units;
}
inline std::string show(std::nullptr_t, std::size_t = 0) { return "null"; }
template <typename Number>
requires std::is_arithmetic_v<Number> std::string show(Number number, std::size_t = 0) {
  std::ostringstream out;
  out << std::setprecision(17) << number;
  return out.str();
}

inline std::string show(const double* number, std::size_t = 0) { return show(*number); }

inline std::string listOf(const std::vector<std::string>& parts) {
  std::string list;
  for (const std::string& part : parts) list += (list.empty() ? "" : ", ") + part;
  return list;
}

std::string showCall(const std::string& routine, const auto&... arguments) {
  return routine + "(" + listOf({show(arguments)...}) + ")";
}

// Results as they are compared: texts and numbers.
inline Text comparable(BSTR result) { return take(result); }
inline Text comparable(const Text& text) { return text; }
inline Text comparable(const B& string) { return string.text(); }
template <typename Number>
requires std::is_arithmetic_v<Number>
double comparable(Number number) { return static_cast<double>(number); }

inline bool same(const Text& a, const Text& b) { return a == b; }
inline std::size_t firstDifference(const Text& a, const Text& b) {
  return static_cast<std::size_t>(std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first -
                                  a.begin());
}
inline std::size_t firstDifference(double, double) { return 0; }

// A test tells some failures, not all. A fuzz target is no test, and ends with its first.
inline bool hasToldEnough() {
  const testing::TestInfo* const test = testing::UnitTest::GetInstance()->current_test_info();
  return test != nullptr && test->result()->total_part_count() >= 3;
}

// Compares two results. `call` gives the text of the call.
template <typename Actual, typename Expected>
testing::AssertionResult isSame(const Actual& actual, const Expected& expected, const auto& call) {
  if (same(actual, expected) || hasToldEnough()) return testing::AssertionSuccess();
  const std::size_t place = firstDifference(actual, expected);
  return testing::AssertionFailure()
         << call() << "\n  gives    " << show(actual, place) << "\n  expected "
         << show(expected, place)
         << (place >= kAround ? "\n  first difference at unit " + std::to_string(place) : "");
}

testing::AssertionResult gives(const char* routine, const auto& call, const auto& expected,
                               const auto&... arguments) {
  const auto shownHere = [&] { return showCall(routine, arguments...); };
  return isSame(named(shownHere, [&] { return comparable(call(arguments...)); }),
                comparable(expected), shownHere);
}

// A text as the argument of a host routine; anything else as it is.
inline B asHostArgument(const Text& text) { return B(text); }
inline B asHostArgument(const wchar_t* text) { return B(Text(text)); }
const auto& asHostArgument(const auto& argument) { return argument; }

// Expects that a routine gives a result: EXPECT_GIVES(VB_StrLeft, L"He", L"Hello", 2). A host
// routine is given host strings of the texts.
#define EXPECT_GIVES(...) EXPECT_PRED_FORMAT1(resultItself, GIVES(__VA_ARGS__))
#define ASSERT_GIVES(...) ASSERT_PRED_FORMAT1(resultItself, GIVES(__VA_ARGS__))
#define GIVES(routine, ...) gives(#routine, CALL(routine), __VA_ARGS__)
#define CALL(routine)                                  \
  [&](const auto&... arguments) {                      \
    if constexpr (requires { routine(arguments...); }) \
      return routine(arguments...);                    \
    else                                               \
      return routine(asHostArgument(arguments)...);    \
  }
inline testing::AssertionResult resultItself(const char*, testing::AssertionResult result) {
  return result;
}

// Adds a test that is named after a routine, so that ctest -R finds it.
inline void addTest(const std::string& routine, const std::string& test,
                    std::function<void()> body) {
  struct Named : testing::Test {
    explicit Named(std::function<void()> function) : body(std::move(function)) {}
    void TestBody() override { body(); }
    std::function<void()> body;
  };
  testing::RegisterTest(routine.c_str(), test.c_str(), nullptr, nullptr, __FILE__, __LINE__,
                        [body]() -> testing::Test* { return new Named(body); });
}

// Expects that an expression, whose own text is shown, gives a result.
#define EXPECT_EXAMPLE(actual, expected) \
  EXPECT_PRED_FORMAT1(resultItself,      \
                      isSame(comparable(actual), comparable(expected), [] { return #actual; }))

#endif
