// Texts, and host strings that are made and released through the sibling library.
#ifndef TESTS_SUPPORT_HOSTSTRINGS_H
#define TESTS_SUPPORT_HOSTSTRINGS_H

#include <list>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "QUVARDBS1C.h"
#include "QUVARDCR1C.h"

using Text = std::wstring;
using Texts = std::vector<Text>;
using namespace std::string_literals;

// What stands for the null handle where there are texts: no other text equals it.
inline const Text kNullHandle = L"(null handle)";

// 16-bit text as wide text, one unit for one.
inline Text widen(const std::u16string& text) { return {text.begin(), text.end()}; }

inline std::u16string narrow(const Text& text) { return {text.begin(), text.end()}; }

// Each 16-bit unit but zero, in order.
inline Text allUnits() {
  Text all;
  for (wchar_t unit = 1; unit <= 0xFFFF; ++unit) all.push_back(unit);
  return all;
}

// A host string of the given text, released at the end of its life.
class B {
 public:
  explicit B(const std::u16string& text) : handle_(SysAllocString16(text.c_str())) {}
  explicit B(const Text& text) : B(narrow(text)) {}
  B(const B&) = delete;
  B& operator=(const B&) = delete;
  ~B() { releaseBSTR(handle_); }
  operator BSTR() const { return handle_; }
  Text text() const { return widen(handle_); }

 private:
  BSTR handle_;
};

inline Texts textsOf(std::span<const BSTR> handles) {
  Texts texts;
  for (const BSTR handle : handles) texts.push_back(handle ? widen(handle) : kNullHandle);
  return texts;
}

// Host strings of the given texts, and the handles of them all.
class Strings {
 public:
  explicit Strings(const Texts& texts) {
    for (const Text& text : texts) {
      handles_.push_back(text == kNullHandle ? nullptr : BSTR(owners_.emplace_back(text)));
    }
  }
  const BSTR* handles() const { return handles_.data(); }
  Texts texts() const { return textsOf(handles_); }

 private:
  std::list<B> owners_;
  std::vector<BSTR> handles_;
};

// The text of a result, which is released.
inline Text take(BSTR result) {
  if (result == nullptr) return kNullHandle;
  const std::unique_ptr<char16_t, void (*)(BSTR)> owner(result, releaseBSTR);
  return widen(result);
}

#endif
