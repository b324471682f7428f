#include "strings/Replacement.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "host/Boundary.h"

using quvard::codeUnits;
using quvard::Replacer;
using quvard::TextBuffer;

namespace {

std::wstring replaceIn(const std::wstring& text, std::wstring_view pattern,
                       std::wstring_view replacement) {
  std::wstring result;
  result.reserve(text.size());
  Replacer<wchar_t>(pattern, replacement).append(std::wstring_view(text), result);
  return result;
}

// Replaces one code unit by another in the caller's text. Does not write to a text without the unit, which
// may be in read-only memory.
void replaceUnit(std::span<char16_t> text, char16_t pattern, char16_t replacement) {
  if (pattern == replacement) return;
  for (std::size_t start = 0; start < text.size(); start += quvard::kMatchedUnits) {
    const std::span stretch =
        text.subspan(start, std::min(text.size() - start, quvard::kMatchedUnits));
    uint64_t found = quvard::matches(std::u16string_view(stretch.data(), stretch.size()), pattern);
    if (found != 0 && stretch.size() == quvard::kMatchedUnits) {
      // Without a branch for each occurrence.
      for (char16_t& unit : stretch) unit = unit == pattern ? replacement : unit;
      continue;
    }
    for (; found != 0; found &= found - 1) {
      stretch[static_cast<std::size_t>(std::countr_zero(found))] = replacement;
    }
  }
}

}  // namespace

std::wstring Replace(std::wstring text, std::wstring pattern, std::wstring replacement) {
  return replaceIn(text, pattern, replacement);
}

std::wstring Replace(std::wstring text, const wchar_t* pattern, const wchar_t* replacement) {
  return replaceIn(text, pattern, replacement);
}

BSTR VB_Replace(BSTR text, BSTR pattern, BSTR replacement) {
  if (text == nullptr || pattern == nullptr) return text;
  const std::u16string_view patternUnits = codeUnits(pattern);
  const std::u16string_view textUnits = codeUnits(text);
  const std::u16string_view replacementUnits = codeUnits(replacement);
  if (patternUnits.size() != 1 || replacementUnits.size() != 1) {
    TextBuffer result;
    result.reserve(textUnits.size());
    Replacer(patternUnits, replacementUnits).append(textUnits, result);
    return newHostString(result);
  }
  replaceUnit({text, textUnits.size()}, patternUnits.front(), replacementUnits.front());
  return SysAllocString16(text);
}

BSTR VB_Replace2(BSTR text, BSTR pattern1, BSTR replacement1, BSTR pattern2, BSTR replacement2) {
  const TextBuffer wide(quvard::wideText(text));
  const std::u16string_view pattern1Units = codeUnits(pattern1);
  const std::u16string_view replacement1Units = codeUnits(replacement1);
  const std::u16string_view pattern2Units = codeUnits(pattern2);
  const std::u16string_view replacement2Units = codeUnits(replacement2);

  TextBuffer result;
  result.reserve(wide.size());
  const Replacer second(pattern2Units, replacement2Units);
  quvard::ReplacingOutput output(second, result);
  Replacer(pattern1Units, replacement1Units).append(std::wstring_view(wide), output);
  output.finish();
  return newHostString(result);
}
