// Texts, and host strings that are made and released through the sibling library.
#ifndef TESTS_SUPPORT_HOSTSTRINGS_H
#define TESTS_SUPPORT_HOSTSTRINGS_H

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <string>
#include <tuple>

#include "QUVARDBS1C.h"
#include "QUVARDCR1C.h"

using Text = std::wstring;
using namespace std::string_literals;

// A row of a table, whose columns are named where it is gone through:
//   for (const auto& [text, expected] : {row(L"a", L"A"), row(L"b", L"B")})
template <typename... Columns>
auto row(Columns... columns) {
  return std::tuple(columns...);
}

// 16-bit text as wide text, one unit for one.
inline Text widened(const std::u16string& text) { return {text.begin(), text.end()}; }

inline std::u16string narrowed(const Text& text) { return {text.begin(), text.end()}; }

// Each 16-bit unit but zero, in order.
inline Text allUnits() {
  Text all;
  for (wchar_t unit = 1; unit <= 0xFFFF; ++unit) all.push_back(unit);
  return all;
}

// Random numbers, the same in every run.
inline std::size_t randomBelow(std::size_t limit) {
  static std::mt19937 engine(20260101);
  return engine() % limit;
}

// Random texts over a small alphabet, where patterns occur, overlap and come together.
inline Text randomText(const Text& alphabet, std::size_t longest) {
  Text text(randomBelow(longest + 1), L' ');
  for (wchar_t& unit : text) unit = alphabet[randomBelow(alphabet.size())];
  return text;
}

// A host string of the given text, released at the end of its life.
class B {
 public:
  explicit B(const std::u16string& text) : handle_(SysAllocString16(text.c_str())) {}
  explicit B(const Text& text) : B(narrowed(text)) {}
  B(const B&) = delete;
  B& operator=(const B&) = delete;
  ~B() { releaseBSTR(handle_); }
  operator BSTR() const { return handle_; }
  Text text() const { return widened(handle_); }

 private:
  BSTR handle_;
};

// The text of a result, which is released; a marker that no text equals for the null handle.
inline Text taken(BSTR result) {
  if (result == nullptr) return L"(null handle)";
  const std::unique_ptr<char16_t, void (*)(BSTR)> owner(result, releaseBSTR);
  return widened(result);
}

inline bool operator==(BSTR result, const B& expected) { return taken(result) == expected.text(); }

#endif
