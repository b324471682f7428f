#include "strings/Replacement.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <new>
#include <string_view>
#include <utility>

#include "host/HostFrame.h"
#include "strings/PatternSearch.h"
#include "strings/UnitBlocks.h"

using quvard::givenOut;
using quvard::PatternSearch;
using quvard::unitsOf;

namespace {

// Copies units as wide units and returns the end of the copy, which may overlap them further left.
wchar_t* copied(std::wstring_view units, wchar_t* out) {
  std::memmove(out, units.data(), units.size() * sizeof(wchar_t));
  return out + units.size();
}
wchar_t* copied(std::u16string_view units, wchar_t* out) {
  return std::copy(units.begin(), units.end(), out);
}

// One replacement of a pattern that is not empty, over texts of either width.
template <typename Unit>
class Replacing {
 public:
  using View = std::basic_string_view<Unit>;

  Replacing(View pattern, View replacement)
      : pattern_(pattern), replacement_(replacement), search_(pattern) {}

  bool mayGrow() const { return replacement_.size() > pattern_.size(); }

  std::size_t firstOccurrence(View text) const { return search_.find(text, 0); }

  std::size_t resultLength(View text) const {
    return text.size() + occurrences(text) * (replacement_.size() - pattern_.size());
  }

  // Writes the result and returns its end. It may be written over the text unless it may grow.
  wchar_t* write(View text, wchar_t* out) const {
    if (pattern_.size() > PatternSearch<Unit>::kShort) return writeBySearch(text, out);
    if (pattern_.size() > 1 || !replacement_.empty()) return writeByBlocks(text, out);
    return quvard::copyKept(text, out, [this](Unit unit) { return unit != pattern_.front(); });
  }

 private:
  std::size_t occurrences(View text) const {
    if (pattern_.size() == 1) return quvard::countOf(text, pattern_.front());
    std::size_t count = 0;
    for (std::size_t at = 0; (at = search_.find(text, at)) != View::npos; at += pattern_.size()) {
      ++count;
    }
    return count;
  }

  // For a short pattern: search and copy in one loop, and whole blocks where no occurrence begins.
  wchar_t* writeByBlocks(View text, wchar_t* out) const {
    constexpr std::size_t kBlock = quvard::kBlockUnits;
    for (std::size_t at = 0; at < text.size();) {
      const std::size_t end = std::min(at + kBlock, text.size());
      if (end - at == kBlock && !quvard::holds(text.data() + at, kBlock, pattern_.front())) {
        out = copied(text.substr(at, kBlock), out);
        at = end;
      }
      while (at < end) {
        if (text[at] == pattern_.front() && standsAt(text, at)) {
          for (const Unit unit : replacement_) *out++ = static_cast<wchar_t>(unit);
          at += pattern_.size();
        } else {
          *out++ = static_cast<wchar_t>(text[at++]);
        }
      }
    }
    return out;
  }

  // Whether an occurrence stands where its first unit does.
  bool standsAt(View text, std::size_t at) const {
    if (text.size() - at < pattern_.size()) return false;
    std::size_t i = 1;
    while (i < pattern_.size() && text[at + i] == pattern_[i]) ++i;
    return i == pattern_.size();
  }

  wchar_t* writeBySearch(View text, wchar_t* out) const {
    std::size_t from = 0;
    for (std::size_t at = 0; (at = search_.find(text, from)) != View::npos;
         from = at + pattern_.size()) {
      out = copied(text.substr(from, at - from), out);
      out = copied(replacement_, out);
    }
    return copied(text.substr(from), out);
  }

  View pattern_;
  View replacement_;
  PatternSearch<Unit> search_;
};

// Overwrites units in the caller's own storage. Blocks are aligned, so that none reaches from memory
// with a match into memory without one, which need not be writable.
void replaceUnits(char16_t* units, std::size_t length, char16_t pattern, char16_t replacement) {
  constexpr std::size_t kBlock = 64;
  const std::size_t offset = reinterpret_cast<std::uintptr_t>(units) / sizeof(char16_t) % kBlock;
  for (std::size_t start = 0, end = kBlock - offset; start < length; start = end, end += kBlock) {
    char16_t* const block = units + start;
    const std::size_t size = std::min(end, length) - start;
    if (quvard::holds(block, size, pattern)) {
      // Without a branch, so that the compiler makes it a few wide operations.
      std::transform(block, block + size, block, [pattern, replacement](char16_t unit) {
        return unit == pattern ? replacement : unit;
      });
    }
  }
}

}  // namespace

std::wstring quvard::replaced(std::wstring text, std::wstring_view pattern,
                              std::wstring_view replacement) {
  if (pattern.empty() || pattern == replacement) return text;
  const Replacing<wchar_t> replacing(pattern, replacement);
  const std::size_t first = replacing.firstOccurrence(text);
  if (first == text.npos) return text;
  const std::wstring_view rest = std::wstring_view(text).substr(first);
  if (replacing.mayGrow()) {
    const std::size_t length = first + replacing.resultLength(rest);
    if (length > text.max_size()) throw std::bad_alloc();
    std::wstring result(length, L'\0');
    replacing.write(rest, std::copy_n(text.data(), first, result.data()));
    return result;
  }
  text.resize(static_cast<std::size_t>(replacing.write(rest, text.data() + first) - text.data()));
  return text;
}

std::wstring Replace(std::wstring text, std::wstring pattern, std::wstring replacement) {
  return quvard::replaced(std::move(text), pattern, replacement);
}

std::wstring Replace(std::wstring text, const wchar_t* pattern, const wchar_t* replacement) {
  return quvard::replaced(std::move(text), pattern, replacement);
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
  result = quvard::replaced(std::move(result), sought1, inserted1);
  return givenOut(quvard::replaced(std::move(result), sought2, inserted2));
}
