#include "strings/Replacement.h"

#include <cstddef>
#include <new>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "host/Boundary.h"
#include "strings/WideForm.h"

using quvard::giveOut;
using quvard::Replaced;
using quvard::TextBuffer;
using quvard::unitsOf;

namespace {

std::wstring replaceIn(std::wstring text, std::wstring_view pattern,
                       std::wstring_view replacement) {
  const Replaced<wchar_t, wchar_t> result(text, pattern, replacement);
  if (result.mayGrow()) {
    const std::size_t size = result.size();
    // std::wstring itself would throw another exception.
    if (size > text.max_size()) throw std::bad_alloc();
    if (size > text.size()) {
      std::wstring grown(size, L'\0');
      result.write(grown.data());
      return grown;
    }
  }
  quvard::overwrite(text, result);
  return text;
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
    return giveOut(Replaced<char16_t, char16_t>(searched, sought, inserted));
  }
  // One unit by one: in the caller's own units, and nothing is written but what changes.
  const char16_t unit = inserted.front();
  if (sought.front() != unit) {
    quvard::PatternSearch<char16_t>(sought).forEach(searched,
                                                    [=](std::size_t at) { text[at] = unit; });
  }
  return SysAllocString16(text);
}

BSTR VB_Replace2(BSTR text, BSTR pattern1, BSTR replacement1, BSTR pattern2, BSTR replacement2) {
  const TextBuffer searched = quvard::takeIn(text);
  const std::u16string_view sought1 = unitsOf(pattern1);
  const std::u16string_view inserted1 = unitsOf(replacement1);
  const std::u16string_view sought2 = unitsOf(pattern2);
  const std::u16string_view inserted2 = unitsOf(replacement2);
  // Short texts may have a long first result, which is no reason for memory from the heap either.
  quvard::BasicTextBuffer<quvard::kUnitsInPlace * quvard::kUnitsInPlace> result1(
      Replaced<wchar_t, char16_t>(searched, sought1, inserted1));
  const Replaced<wchar_t, char16_t> result2(result1, sought2, inserted2);
  if (result2.mayGrow()) return giveOut(result2);
  wchar_t* const units = std::span<wchar_t>(result1).data();
  return giveOut(std::span<wchar_t>(units, result2.write(units)));
}
