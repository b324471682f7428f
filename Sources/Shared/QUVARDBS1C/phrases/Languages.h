// What the library knows of each language: one row a language code.
#ifndef QUVARDBS1C_PHRASES_LANGUAGES_H
#define QUVARDBS1C_PHRASES_LANGUAGES_H

#include <algorithm>
#include <array>
#include <string_view>

namespace quvard {

// What LowerFirst does with the first letter of a text in the language.
enum class FirstLetter { lowered, keptUnlessForced, kept };

struct Language {
  wchar_t code[3];
  bool nounFirst = false;
  bool freeSeparator = false;  // noBlank makes it empty; otherwise it is always one blank
  bool lowersNoun = false;
  bool heedsUpperAdjective = false;
  bool heedsLowerResult = false;
  FirstLetter firstLetter = FirstLetter::lowered;
};

inline constexpr std::array<Language, 10> kLanguages{{
    {.code = L"ES", .nounFirst = true, .freeSeparator = true, .heedsLowerResult = true},
    {.code = L"FR", .nounFirst = true, .freeSeparator = true, .heedsLowerResult = true},
    {.code = L"IT", .nounFirst = true, .freeSeparator = true, .heedsLowerResult = true},
    {.code = L"PT", .nounFirst = true, .freeSeparator = true, .heedsLowerResult = true},
    {.code = L"PL", .nounFirst = true, .freeSeparator = true, .heedsLowerResult = true},
    {.code = L"US", .lowersNoun = true, .heedsUpperAdjective = true, .heedsLowerResult = true},
    {.code = L"DE", .heedsUpperAdjective = true, .firstLetter = FirstLetter::keptUnlessForced},
    {.code = L"JP", .freeSeparator = true, .firstLetter = FirstLetter::kept},
    {.code = L"CS", .freeSeparator = true},
    {.code = L"CN", .freeSeparator = true},
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
