// Host strings for tests: made and released through the sibling library.
#ifndef TESTS_SUPPORT_HOSTSTRINGS_H
#define TESTS_SUPPORT_HOSTSTRINGS_H

#include <memory>
#include <string>

#include "QUVARDBS1C.h"
#include "QUVARDCR1C.h"

// 16-bit text as wide text, one unit for one.
inline std::wstring widened(const std::u16string& text) { return {text.begin(), text.end()}; }

inline std::u16string narrowed(const std::wstring& text) {
  std::u16string units;
  for (const wchar_t unit : text) units.push_back(static_cast<char16_t>(unit));
  return units;
}

// A host string of the given text, released at the end of its life.
class B {
 public:
  explicit B(const std::u16string& text) : handle_(SysAllocString16(text.c_str())) {}
  explicit B(const std::wstring& text) : B(narrowed(text)) {}
  B(const B&) = delete;
  B& operator=(const B&) = delete;
  ~B() { releaseBSTR(handle_); }

  operator BSTR() const { return handle_; }
  std::u16string text() const { return handle_; }

 private:
  BSTR handle_;
};

// The text of a result, which is released; a marker that no text equals for the null handle.
inline std::wstring taken(BSTR result) {
  if (result == nullptr) return L"(null handle)";
  const std::unique_ptr<char16_t, void (*)(BSTR)> owner(result, releaseBSTR);
  return widened(result);
}

inline bool operator==(BSTR result, const B& expected) {
  return taken(result) == widened(expected.text());
}

#endif
