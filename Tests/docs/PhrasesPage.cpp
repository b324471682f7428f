#include <functional>

#include "docs/PageTable.h"

namespace {

const std::string kPage = "phrases.md";

// Expects the table that has a row for each label and a column for each set of languages that give
// the same texts in all rows.
void expectTableByLanguage(const std::string& title, const Cells& labels,
                           const std::function<Text(std::size_t, const Text&)>& call) {
  std::vector<Cells> columns;
  for (const std::string language :
       {"ES", "FR", "IT", "PT", "PL", "US", "DE", "JP", "CS", "CN", "any other"}) {
    Cells column{language};
    for (std::size_t i = 0; i < labels.size(); ++i) {
      column.push_back(inGuillemets(call(i, Text(language.begin(), language.end()))));
    }
    const auto same = std::find_if(columns.begin(), columns.end(), [&](const Cells& other) {
      return std::equal(other.begin() + 1, other.end(), column.begin() + 1);
    });
    if (same == columns.end()) {
      columns.push_back(column);
    } else {
      same->front() += ", " + language;
    }
  }
  std::vector<Cells> rows{{title}};
  for (const std::string& label : labels) rows.push_back({label});
  for (const Cells& column : columns) {
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i].push_back(column[i]);
  }
  expectTable(kPage, rows.front(), {rows.begin() + 1, rows.end()});
}

}  // namespace

TEST(PhrasesPage, EachLanguageWithEachFlag) {
  const std::vector<unsigned> sets{0, 1, 2, 4, 3, 5, 6, 7};
  const char* const names[] = {"`upperAdjective`", "`lowerResult`", "`noBlank`"};
  const auto flag = [&](std::size_t i, int bit) { return sets[i] >> bit & 1 ? -1 : 0; };
  Cells labels;
  for (std::size_t i = 0; i < sets.size(); ++i) {
    Cells set;
    for (int bit = 0; bit < 3; ++bit) {
      if (flag(i, bit) != 0) set.push_back(names[bit]);
    }
    labels.push_back(set.empty() ? "none" : listOf(set));
  }
  expectTableByLanguage("Flags set", labels, [&](std::size_t i, const Text& language) {
    return LocalAN(L"linear", L"Model", language, flag(i, 0), flag(i, 1), flag(i, 2));
  });
}

TEST(PhrasesPage, MissingWords) {
  const Text adjectives[] = {L"", L"linear", L""}, nouns[] = {L"Model", L"", L""};
  expectTableByLanguage("Adjective, noun", {"«», «Model»", "«linear», «»", "«», «»"},
                        [&](std::size_t i, const Text& language) {
                          return LocalAN(adjectives[i], nouns[i], language, 0, 0, 0);
                        });
}

TEST(PhrasesPage, LowerFirst) {
  expectTableByLanguage("`forceDE`", {"not set", "set"}, [](std::size_t i, const Text& language) {
    return LowerFirst(L"Model", language, i == 0 ? 0 : -1);
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
    rows.push_back({inGuillemets(handle.text()), inGuillemets(take(VB_SpStrSp(handle))),
                    inGuillemets(take(VB_PStrP(handle))), inGuillemets(take(VB_BStrB(handle)))});
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
