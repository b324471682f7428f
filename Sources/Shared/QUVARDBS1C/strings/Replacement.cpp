#include <algorithm>
#include <cwchar>
#include <memory>
#include <string_view>
#include <utility>

#include "host/HostFrame.h"
#include "strings/PatternSearch.h"

using quvard::givenOut;
using quvard::PatternSearch;
using quvard::unitsOf;

namespace {

// One replacement of a pattern that is not empty, over texts of either width.
template <typename Unit>
class Replacing {
 public:
  using View = std::basic_string_view<Unit>;

  Replacing(View pattern, View replacement)
      : search_(pattern), patternLength_(pattern.size()), replacement_(replacement) {}

  bool mayGrow() const { return replacement_.size() > patternLength_; }

  std::size_t resultLength(View text) const {
    std::size_t length = text.size();
    for (std::size_t at = 0; (at = search_.find(text, at)) != View::npos; at += patternLength_) {
      length += replacement_.size() - patternLength_;
    }
    return length;
  }

  // Writes the result and returns its end. It may be written over the text unless it may grow.
  wchar_t* write(View text, wchar_t* out) const {
    std::size_t from = 0;
    for (std::size_t at = 0; (at = search_.find(text, from)) != View::npos;
         from = at + patternLength_) {
      out = std::copy(text.begin() + from, text.begin() + at, out);
      out = std::copy(replacement_.begin(), replacement_.end(), out);
    }
    return std::copy(text.begin() + from, text.end(), out);
  }

 private:
  PatternSearch<Unit> search_;
  std::size_t patternLength_;
  View replacement_;
};

std::wstring replaced(std::wstring text, std::wstring_view pattern, std::wstring_view replacement) {
  if (pattern.empty()) return text;
  const Replacing<wchar_t> replacing(pattern, replacement);
  if (replacing.mayGrow()) {
    const std::size_t length = replacing.resultLength(text);
    if (length == text.size()) return text;
    std::wstring result(length, L'\0');
    replacing.write(text, result.data());
    return result;
  }
  text.resize(static_cast<std::size_t>(replacing.write(text, text.data()) - text.data()));
  return text;
}

// Overwrites units in the caller's own storage, and none but those that are to change: a block
// without one is left alone.
void replaceUnits(char16_t* units, std::size_t length, char16_t pattern, char16_t replacement) {
  constexpr std::size_t kBlock = 64;
  for (std::size_t start = 0; start < length; start += kBlock) {
    char16_t* const first = units + start;
    char16_t* const last = units + std::min(start + kBlock, length);
    if (std::count(first, last, pattern) > 0) std::replace(first, last, pattern, replacement);
  }
}

}  // namespace

std::wstring Replace(std::wstring text, std::wstring pattern, std::wstring replacement) {
  return replaced(std::move(text), pattern, replacement);
}

std::wstring Replace(std::wstring text, const wchar_t* pattern, const wchar_t* replacement) {
  if (std::wcscmp(pattern, replacement) == 0) return text;
  return replaced(std::move(text), pattern, replacement);
}

BSTR VB_Replace(BSTR text, BSTR pattern, BSTR replacement) {
  if (text == nullptr || pattern == nullptr) return text;
  const std::u16string_view sought = unitsOf(pattern);
  const std::u16string_view searched = unitsOf(text);
  const std::u16string_view inserted = unitsOf(replacement);
  if (sought.size() == 1 && inserted.size() == 1) {
    replaceUnits(text, searched.size(), sought.front(), inserted.front());
    return SysAllocString16(text);
  }

  if (sought.empty() || sought == inserted) return givenOut(quvard::widened(searched));

  const Replacing<char16_t> replacing(sought, inserted);
  const std::size_t room = replacing.mayGrow() ? replacing.resultLength(searched) : searched.size();
  const std::unique_ptr<wchar_t[]> result(new wchar_t[room + 1]);
  *replacing.write(searched, result.get()) = 0;
  return SysAllocString2(result.get());
}

BSTR VB_Replace2(BSTR text, BSTR pattern1, BSTR replacement1, BSTR pattern2, BSTR replacement2) {
  std::wstring result = convToWstring(text);
  const std::wstring sought1 = quvard::widened(unitsOf(pattern1));
  const std::wstring inserted1 = quvard::widened(unitsOf(replacement1));
  const std::wstring sought2 = quvard::widened(unitsOf(pattern2));
  const std::wstring inserted2 = quvard::widened(unitsOf(replacement2));
  result = Replace(std::move(result), sought1.c_str(), inserted1.c_str());
  return givenOut(Replace(std::move(result), sought2.c_str(), inserted2.c_str()));
}
