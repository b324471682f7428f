// Compares tables of the pages in docs/ with the results of the library.
#ifndef TESTS_DOCS_PAGETABLE_H
#define TESTS_DOCS_PAGETABLE_H

#include <algorithm>
#include <fstream>

#include "TestPaths.h"
#include "support/Expectations.h"

using Cells = std::vector<std::string>;

// The text between guillemets, with blanks at its ends as ␣, because browsers drop them.
inline std::string inGuillemets(const Text& text) {
  const auto isOuter = [&text](std::size_t i) {
    return text.find_first_not_of(L' ') > i || i > text.find_last_not_of(L' ');
  };
  std::string result = "«";
  for (std::size_t i = 0; i < text.size(); ++i) {
    result += isOuter(i) ? "␣" : std::string(1, static_cast<char>(text[i]));
  }
  return result + "»";
}

inline std::string markdownRow(const Cells& cells) {
  std::string row = "|";
  for (const std::string& cell : cells) row += " " + cell + " |";
  return row + "\n";
}

// Expects the page to contain a table with these rows; the first row has the titles.
inline void expectTable(const std::string& page, const std::vector<Cells>& rows) {
  const std::string titles = markdownRow(rows.front());
  std::string expected = titles + markdownRow(Cells(rows.front().size(), "---"));
  for (std::size_t i = 1; i < rows.size(); ++i) expected += markdownRow(rows[i]);
  std::ifstream file(QUVARD_DOCS "/" + page);
  const std::string text(std::istreambuf_iterator<char>(file), {});
  const std::size_t start = std::min(text.find(titles), text.size());
  const std::string table = text.substr(start, text.find("\n\n", start) + 1 - start);
  EXPECT_EQ(table, expected) << "First the table in docs/" << page
                             << ", then the results of the library.";
}

#endif
