#include "docs/PageTable.h"

namespace {

bool has(const std::string& label, const char* word) { return label.find(word) != label.npos; }

// Expects a table with one row per label, and one column for all languages with the same results in every
// row. The first label is the title of the first column.
void expectTableByLanguage(const Cells& labels,
                           Text (*call)(const std::string& label, const Text& language)) {
  std::vector<Cells> columns{labels};
  for (const std::string language :
       {"ES", "FR", "IT", "PT", "PL", "US", "DE", "JP", "CS", "CN", "any other"}) {
    Cells column{language};
    for (std::size_t i = 1; i < labels.size(); ++i) {
      column.push_back(inGuillemets(call(labels[i], Text(language.begin(), language.end()))));
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
  std::vector<Cells> rows(labels.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    for (const Cells& column : columns) rows[i].push_back(column[i]);
  }
  expectTable("phrases.md", rows);
}

}  // namespace

TEST(PhrasesPage, Languages) {
  std::vector<Cells> rows{{"Code", "Language", "`VB_LocalAN(\"linear\", \"Model\", code)`"}};
  for (const auto& [code, language] :
       {std::pair("ES", "Spanish"), std::pair("FR", "French"), std::pair("IT", "Italian"),
        std::pair("PT", "Portuguese"), std::pair("PL", "Polish"), std::pair("US", "English"),
        std::pair("DE", "German"), std::pair("JP", "Japanese"), std::pair("CS", "Czech"),
        std::pair("CN", "Chinese")}) {
    const std::string text = code;
    const Text phrase = LocalAN(L"linear", L"Model", Text(text.begin(), text.end()), -1, 0, 0);
    rows.push_back({code, language, inGuillemets(phrase)});
  }
  for (const char* const page : {"phrases.md", "from-a-macro.md"}) expectTable(page, rows);
}

TEST(PhrasesPage, EachLanguageWithEachFlag) {
  expectTableByLanguage({"Flags set", "none", "`upperAdjective`", "`lowerResult`", "`noBlank`",
                         "`upperAdjective`, `lowerResult`", "`upperAdjective`, `noBlank`",
                         "`lowerResult`, `noBlank`", "`upperAdjective`, `lowerResult`, `noBlank`"},
                        [](const std::string& flags, const Text& language) {
                          return LocalAN(L"linear", L"Model", language,
                                         has(flags, "upper") ? -1 : 0, has(flags, "lower") ? -1 : 0,
                                         has(flags, "noBlank") ? -1 : 0);
                        });
}

TEST(PhrasesPage, MissingWords) {
  expectTableByLanguage({"Adjective, noun", "«», «Model»", "«linear», «»", "«», «»"},
                        [](const std::string& words, const Text& language) {
                          return LocalAN(has(words, "linear") ? L"linear" : L"",
                                         has(words, "Model") ? L"Model" : L"", language, 0, 0, 0);
                        });
}

TEST(PhrasesPage, LowerFirst) {
  expectTableByLanguage({"`forceDE`", "not set", "set"},
                        [](const std::string& flag, const Text& language) {
                          return LowerFirst(L"Model", language, flag == "set" ? -1 : 0);
                        });
}

TEST(PhrasesPage, UpperFirst) {
  std::vector<Cells> rows{{"Text", "`UpperFirst`"}};
  for (const wchar_t* const text : {L"linear model", L"Linear", L"2nd model", L" linear", L""}) {
    rows.push_back({inGuillemets(text), inGuillemets(UpperFirst(text))});
  }
  expectTable("phrases.md", rows);
}

TEST(PhrasesPage, Wrapping) {
  std::vector<Cells> rows{{"Text", "`VB_SpStrSp`", "`VB_PStrP`", "`VB_BStrB`"}};
  for (const Text text : {L"units", L"(units)", L""}) {
    rows.push_back({inGuillemets(text)});
    for (const auto wrap : {VB_SpStrSp, VB_PStrP, VB_BStrB}) {
      rows.back().push_back(inGuillemets(take(wrap(B(text)))));
    }
  }
  expectTable("phrases.md", rows);
}

TEST(PhrasesPage, Inflection) {
  std::vector<Cells> rows{{"Count", "`SingPlural`"}};
  for (const int32_t count : {-1, 0, 1, 2, 3}) {
    rows.push_back({std::to_string(count), inGuillemets(SingPlural(L"case", L"cases", count))});
  }
  expectTable("phrases.md", rows);
}

TEST(PhrasesPage, MarkupTokens) {
  std::vector<Cells> rows{{"Text", "Result"}};
  for (const std::string token : {"<BR>", "<QM>", "<CM>", "<br>", "< BR>"}) {
    const Text result = QUVARDHTMLProcessor(Text(token.begin(), token.end()));
    char code[8];
    std::snprintf(code, sizeof code, "U+%04X", static_cast<unsigned>(result[0]));
    rows.push_back({"`" + token + "`", result.size() == 1 ? code : "unchanged"});
  }
  expectTable("phrases.md", rows);
}
