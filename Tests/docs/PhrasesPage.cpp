#include <array>

#include "docs/PageTable.h"

namespace {

const std::string kPage = "phrases.md";

struct Code {
  const wchar_t* code;
  const char* shown;
};
constexpr Code kCodes[] = {{L"ES", "ES"}, {L"FR", "FR"}, {L"IT", "IT"},       {L"PT", "PT"},
                           {L"PL", "PL"}, {L"US", "US"}, {L"DE", "DE"},       {L"JP", "JP"},
                           {L"CS", "CS"}, {L"CN", "CN"}, {L"XX", "any other"}};

// Expects the table that has a row for each of some cases and a column for each set of languages
// that give the same texts in all of them. `call` takes a case and a language code.
template <typename Case, typename Call>
void expectTableByLanguage(const std::string& title,
                           const std::vector<std::pair<std::string, Case>>& cases, Call call) {
  std::vector<std::pair<Cells, Cells>> columns;  // languages, texts
  for (const auto& [code, shown] : kCodes) {
    Cells texts;
    for (const auto& [name, values] : cases) texts.push_back(inGuillemets(call(values, code)));
    const auto same = std::find_if(columns.begin(), columns.end(),
                                   [&](const auto& column) { return column.second == texts; });
    if (same == columns.end()) {
      columns.push_back({{shown}, texts});
    } else {
      same->first.push_back(shown);
    }
  }

  Cells titles{title};
  for (const auto& column : columns) titles.push_back(listOf(column.first));
  std::vector<Cells> rows;
  for (std::size_t i = 0; i < cases.size(); ++i) {
    rows.push_back({cases[i].first});
    for (const auto& column : columns) rows.back().push_back(column.second[i]);
  }
  expectTable(kPage, titles, rows);
}

}  // namespace

TEST(PhrasesPage, EachLanguageWithEachFlag) {
  const char* const names[] = {"`upperAdjective`", "`lowerResult`", "`noBlank`"};
  std::vector<std::pair<std::string, std::array<HostBool, 3>>> cases;
  for (const int set : {0, 1, 2, 4, 3, 5, 6, 7}) {
    Cells shown;
    std::array<HostBool, 3> flags{};
    for (std::size_t i = 0; i < 3; ++i) {
      if ((set >> i & 1) == 0) continue;
      flags[i] = -1;
      shown.push_back(names[i]);
    }
    cases.push_back({shown.empty() ? "none" : listOf(shown), flags});
  }
  expectTableByLanguage("Flags set", cases, [](const auto& flags, const wchar_t* language) {
    return LocalAN(L"linear", L"Model", language, flags[0], flags[1], flags[2]);
  });
}

TEST(PhrasesPage, MissingWords) {
  using Words = std::pair<Text, Text>;
  const std::vector<std::pair<std::string, Words>> cases{
      {"«», «Model»", {L"", L"Model"}}, {"«linear», «»", {L"linear", L""}}, {"«», «»", {}}};
  expectTableByLanguage("Adjective, noun", cases, [](const Words& words, const wchar_t* language) {
    return LocalAN(words.first, words.second, language, 0, 0, 0);
  });
}

TEST(PhrasesPage, LowerFirst) {
  const std::vector<std::pair<std::string, HostBool>> cases{{"not set", 0}, {"set", -1}};
  expectTableByLanguage("`forceDE`", cases, [](HostBool forceDE, const wchar_t* language) {
    return LowerFirst(L"Model", language, forceDE);
  });
}

TEST(PhrasesPage, UpperFirst) {
  std::vector<Cells> rows;
  for (const wchar_t* const text : {L"linear model", L"Linear", L"2nd model", L" linear", L""}) {
    rows.push_back({inGuillemets(text), inGuillemets(UpperFirst(text))});
  }
  expectTable(kPage, {"Text", "`UpperFirst`"}, rows);
}

TEST(PhrasesPage, Wrapping) {
  std::vector<Cells> rows;
  for (const char16_t* const text : {u"units", u"(units)", u""}) {
    const B handle(text);
    rows.push_back({inGuillemets(handle.text()), inGuillemets(taken(VB_SpStrSp(handle))),
                    inGuillemets(taken(VB_PStrP(handle))), inGuillemets(taken(VB_BStrB(handle)))});
  }
  expectTable(kPage, {"Text", "`VB_SpStrSp`", "`VB_PStrP`", "`VB_BStrB`"}, rows);
}

TEST(PhrasesPage, Inflection) {
  std::vector<Cells> rows;
  for (const int32_t count : {-1, 0, 1, 2, 3}) {
    rows.push_back({std::to_string(count), inGuillemets(SingPlural(L"case", L"cases", count))});
  }
  expectTable(kPage, {"Count", "`SingPlural`"}, rows);
}

TEST(PhrasesPage, MarkupTokens) {
  std::vector<Cells> rows;
  for (const std::string token : {"<BR>", "<QM>", "<CM>", "<br>", "< BR>"}) {
    const Text result = QUVARDHTMLProcessor(Text(token.begin(), token.end()));
    std::string shown = "no token, stays";
    if (result.size() == 1) {
      char code[8];
      std::snprintf(code, sizeof code, "U+%04X", static_cast<unsigned>(result[0]));
      shown = code;
    }
    rows.push_back({"`" + token + "`", shown});
  }
  expectTable(kPage, {"Text", "Becomes the unit"}, rows);
}
