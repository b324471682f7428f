// What the library knows of each language: one row a language code.
#ifndef QUVARDBS1C_PHRASES_LANGUAGES_H
#define QUVARDBS1C_PHRASES_LANGUAGES_H

#include <algorithm>
#include <array>
#include <string_view>

namespace quvard {

// What LowerFirst does with the first letter of a text in the language.
enum class FirstLetterRule { lowered, keptUnlessForced, kept };

struct Language {
  wchar_t code[3];
  bool nounFirst = false;
  bool heedsNoBlank = false;  // which leaves out the blank between the words
  bool lowersNoun = false;
  bool heedsUpperAdjective = false;
  bool heedsLowerResult = false;
  FirstLetterRule firstLetter = FirstLetterRule::lowered;
};

inline constexpr std::array<Language, 10> kLanguages{{
    {.code = L"ES", .nounFirst = true, .heedsNoBlank = true, .heedsLowerResult = true},
    {.code = L"FR", .nounFirst = true, .heedsNoBlank = true, .heedsLowerResult = true},
    {.code = L"IT", .nounFirst = true, .heedsNoBlank = true, .heedsLowerResult = true},
    {.code = L"PT", .nounFirst = true, .heedsNoBlank = true, .heedsLowerResult = true},
    {.code = L"PL", .nounFirst = true, .heedsNoBlank = true, .heedsLowerResult = true},
    {.code = L"US", .lowersNoun = true, .heedsUpperAdjective = true, .heedsLowerResult = true},
    {.code = L"DE", .heedsUpperAdjective = true, .firstLetter = FirstLetterRule::keptUnlessForced},
    {.code = L"JP", .heedsNoBlank = true, .firstLetter = FirstLetterRule::kept},
    {.code = L"CS", .heedsNoBlank = true},
    {.code = L"CN", .heedsNoBlank = true},
}};

// The row of a code, compared whole and with case; null for any other code.
inline const Language* findLanguage(std::wstring_view code) {
  if (code.size() != 2) return nullptr;
  const auto row =
      std::find_if(kLanguages.begin(), kLanguages.end(), [code](const Language& language) {
        return language.code[0] == code[0] && language.code[1] == code[1];
      });
  return row == kLanguages.end() ? nullptr : &*row;
}

}  // namespace quvard

#endif
