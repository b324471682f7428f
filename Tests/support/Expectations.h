// Expectations whose failures show the routine, its arguments, its result and the expected result.
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

// A row of a table. The loop names its columns:
//   for (const auto& [text, expected] : {row(L"a", L"A"), row(L"b", L"B")})
template <typename... Columns>
auto row(Columns... columns) {
  return std::tuple(columns...);
}

// A value as a failure shows it. Of a long text, the code units around a position are shown.
inline constexpr std::size_t kContext = 30;
inline std::string show(const Text& text, std::size_t position = 0) {
  if (text == kNullHandle) return "null";
  if (text.size() <= 2 * kContext) return testing::PrintToString(text);
  const std::size_t start = position < kContext ? 0 : std::min(position, text.size()) - kContext;
  return "from code unit " + std::to_string(start) + " of " + std::to_string(text.size()) + ": " +
         testing::PrintToString(text.substr(start, 2 * kContext));
}
inline std::string show(std::nullptr_t) { return "null"; }
template <typename Number>
requires std::is_arithmetic_v<Number> std::string show(Number number, std::size_t = 0) {
  std::ostringstream out;
  out << std::setprecision(17) << number;
  return out.str();
}
inline std::string show(const double* number) { return show(*number); }
inline std::string show(const B& string, std::size_t = 0) { return show(string.text()); }

inline std::string listOf(const std::vector<std::string>& parts) {
  std::string list;
  for (const std::string& part : parts) list += (list.empty() ? "" : ", ") + part;
  return list;
}

std::string showCall(const std::string& routine, const auto&... arguments) {
  return routine + "(" + listOf({show(arguments)...}) + ")";
}

// Results are compared as texts or as numbers.
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

// Compares two results. `call` returns the text of the call.
template <typename Actual, typename Expected>
testing::AssertionResult isSame(const Actual& actual, const Expected& expected, const auto& call) {
  if (same(actual, expected)) return testing::AssertionSuccess();
  const std::size_t position = firstDifference(actual, expected);
  return testing::AssertionFailure()
         << call() << "\n  returns  " << show(actual, position) << "\n  expected "
         << show(expected, position)
         << (position < kContext ? "" : "\n  first difference: " + std::to_string(position));
}

testing::AssertionResult returns(const char* routine, const auto& call, const auto& expected,
                                 const auto&... arguments) {
  const auto describe = [&] { return showCall(routine, arguments...); };
  return isSame(named(describe, [&] { return comparable(call(arguments...)); }),
                comparable(expected), describe);
}

// A text as the argument of a host routine; any other argument unchanged.
inline B asHostArgument(const Text& text) { return B(text); }
inline B asHostArgument(const wchar_t* text) { return B(Text(text)); }
const auto& asHostArgument(const auto& argument) { return argument; }

// Expects that a routine returns a result: EXPECT_GIVES(VB_StrLeft, L"He", L"Hello", 2). A host routine
// takes host strings of the texts.
#define EXPECT_GIVES(...) EXPECT_PRED_FORMAT1(resultItself, RETURNS(__VA_ARGS__))
#define ASSERT_GIVES(...) ASSERT_PRED_FORMAT1(resultItself, RETURNS(__VA_ARGS__))
#define RETURNS(routine, ...) returns(#routine, CALL(routine), __VA_ARGS__)
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

// Registers a test named after a routine, so that ctest -R finds it.
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

// Expects that an expression has a value; a failure shows the expression.
#define EXPECT_EXAMPLE(actual, expected) \
  EXPECT_PRED_FORMAT1(resultItself,      \
                      isSame(comparable(actual), comparable(expected), [] { return #actual; }))

#endif
