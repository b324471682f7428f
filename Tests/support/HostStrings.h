// Texts, and host strings made and released by QUVARDCR1C.
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

// Stands for the null handle among texts. No test uses this text itself.
inline const Text kNullHandle = L"(null handle)";

// Converts each 16-bit code unit to one wide code unit of the same value.
inline Text widen(const std::u16string& text) { return {text.begin(), text.end()}; }

inline std::u16string narrow(const Text& text) { return {text.begin(), text.end()}; }

// Every 16-bit code unit except zero, in order.
inline Text allUnits() {
  Text all;
  for (wchar_t unit = 1; unit <= 0xFFFF; ++unit) all.push_back(unit);
  return all;
}

// Owns a host string. Its name is short because tables of arguments repeat it.
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

// Owns host strings of texts, and has the array of their handles.
class Strings {
 public:
  explicit Strings(const Texts& texts = {}) {
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

// Returns the text of a result and releases the result.
inline Text take(BSTR result) {
  if (result == nullptr) return kNullHandle;
  const std::unique_ptr<char16_t, void (*)(BSTR)> owner(result, releaseBSTR);
  return widen(result);
}

#endif
