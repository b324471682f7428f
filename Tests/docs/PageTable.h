// Tables of the pages in docs/, made by calling the library and compared with what is on the page.
#ifndef TESTS_DOCS_PAGETABLE_H
#define TESTS_DOCS_PAGETABLE_H

#include <algorithm>
#include <fstream>

#include "TestPaths.h"
#include "support/Expectations.h"

using Cells = std::vector<std::string>;

// Text between guillemets. Blanks at its ends, which a browser would drop, as ␣.
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

inline std::string listOf(const Cells& cells) {
  std::string result;
  for (const std::string& cell : cells) result += (result.empty() ? "" : ", ") + cell;
  return result;
}

inline std::string markdownRow(const Cells& cells) {
  std::string row = "|";
  for (const std::string& cell : cells) row += " " + cell + " |";
  return row;
}

// The lines on a page from the one given to the next empty one.
inline std::vector<std::string> linesOfPage(const std::string& page, const std::string& first) {
  std::ifstream file(std::string(QUVARD_DOCS) + "/" + page);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) {
    if (lines.empty() ? line == first : !line.empty()) {
      lines.push_back(line);
    } else if (!lines.empty()) {
      break;
    }
  }
  return lines;
}

// Expects on a page the table with these titles and rows.
inline void expectTable(const std::string& page, const Cells& titles,
                        const std::vector<Cells>& rows) {
  std::vector<std::string> expected{markdownRow(titles), markdownRow(Cells(titles.size(), "---"))};
  for (const Cells& cells : rows) expected.push_back(markdownRow(cells));
  std::vector<std::string> lines = linesOfPage(page, expected.front());
  if (lines.empty()) {
    std::string table;
    for (const std::string& row : expected) table += row + "\n";
    FAIL() << "docs/" << page << " lacks this table:\n" << table;
  }
  lines.resize(std::max(lines.size(), expected.size()), "(no row)");
  expected.resize(lines.size(), "(no row)");
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (lines[i] == expected[i] || hasToldEnough()) continue;
    ADD_FAILURE() << "docs/" << page << ":   " << lines[i] << "\nthe library: " << expected[i];
  }
}

#endif
