#include <algorithm>
#include <cstdint>
#include <new>
#include <string_view>

#include "host/Boundary.h"
#include "strings/PatternSearch.h"
#include "strings/WideForm.h"

using quvard::copyUnits;
using quvard::giveOut;
using quvard::TextBuffer;
using quvard::unitsOf;

namespace {

// A text of units of either width with every occurrence of a pattern replaced.
template <typename Unit>
class Replaced {
 public:
  using View = std::basic_string_view<Unit>;

  Replaced(View text, View pattern, View replacement)
      : text_(text), pattern_(pattern), replacement_(replacement), search_(pattern) {}

  // Whether nothing is to be replaced, whatever the text.
  bool isText() const { return pattern_.empty() || pattern_ == replacement_; }

  bool mayGrow() const { return replacement_.size() > pattern_.size(); }

  std::size_t room() const {
    if (isText() || !mayGrow()) return text_.size();
    return text_.size() + search_.count(text_) * (replacement_.size() - pattern_.size());
  }

  // May write over the text unless that may grow.
  wchar_t* write(wchar_t* out) const {
    std::size_t from = 0;
    if (!isText()) {
      for (std::size_t at = 0; (at = search_.find(text_, from)) != View::npos;
           from = at + pattern_.size()) {
        out = copyUnits(text_.substr(from, at - from), out);
        out = copyUnits(replacement_, out);
      }
    }
    return copyUnits(text_.substr(from), out);
  }

 private:
  View text_;
  View pattern_;
  View replacement_;
  quvard::PatternSearch<Unit> search_;
};

std::wstring replaceIn(std::wstring text, std::wstring_view pattern,
                       std::wstring_view replacement) {
  const Replaced<wchar_t> result(text, pattern, replacement);
  const std::size_t room = result.room();
  if (room > text.max_size()) throw std::bad_alloc();
  if (room > text.size()) return quvard::toWstring(result);
  quvard::overwrite(text, result);
  return text;
}

// Overwrites units in the caller's own storage. Blocks are aligned, so that none reaches from memory
// with a match into memory without one, which need not be writable.
void replaceUnits(char16_t* units, std::size_t length, char16_t pattern, char16_t replacement) {
  constexpr std::size_t kBlock = 64;
  const std::size_t offset = reinterpret_cast<std::uintptr_t>(units) / sizeof(char16_t) % kBlock;
  for (std::size_t start = 0, end = kBlock - offset; start < length; start = end, end += kBlock) {
    char16_t* const block = units + start;
    const std::size_t size = std::min(end, length) - start;
    if (quvard::contains(block, size, pattern)) {
      // Without a branch, so that the compiler makes it a few wide operations.
      std::transform(block, block + size, block, [pattern, replacement](char16_t unit) {
        return unit == pattern ? replacement : unit;
      });
    }
  }
}

}  // namespace

std::wstring Replace(std::wstring text, std::wstring pattern, std::wstring replacement) {
  return replaceIn(std::move(text), pattern, replacement);
}

std::wstring Replace(std::wstring text, const wchar_t* pattern, const wchar_t* replacement) {
  return replaceIn(std::move(text), pattern, replacement);
}

BSTR VB_Replace(BSTR text, BSTR pattern, BSTR replacement) {
  if (text == nullptr || pattern == nullptr) return text;
  const std::u16string_view sought = unitsOf(pattern);
  const std::u16string_view searched = unitsOf(text);
  const std::u16string_view inserted = unitsOf(replacement);
  if (sought.size() != 1 || inserted.size() != 1) {
    return giveOut(Replaced<char16_t>(searched, sought, inserted));
  }
  replaceUnits(text, searched.size(), sought.front(), inserted.front());
  return SysAllocString16(text);
}

BSTR VB_Replace2(BSTR text, BSTR pattern1, BSTR replacement1, BSTR pattern2, BSTR replacement2) {
  const TextBuffer searched(quvard::bufferOf(text));
  const TextBuffer sought1(unitsOf(pattern1)), inserted1(unitsOf(replacement1));
  const TextBuffer sought2(unitsOf(pattern2)), inserted2(unitsOf(replacement2));
  const TextBuffer result1(Replaced<wchar_t>(searched, sought1, inserted1));
  return giveOut(Replaced<wchar_t>(result1, sought2, inserted2));
}
