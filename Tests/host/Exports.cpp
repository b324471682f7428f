// The declarations of the chief header, the lists of exports and the built library name the same
// routines.
#include <cxxabi.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "TestPaths.h"
#include "support/ChiefHeader.h"

namespace {

using Names = std::vector<std::string>;

Names sorted(Names names) {
  std::sort(names.begin(), names.end());
  return names;
}

// The lists hold one symbol a line.
Names listedSymbols() {
  Names symbols;
  for (const std::string path : QUVARD_EXPORT_LISTS) {
    std::istringstream lines(contentOf(path));
    for (std::string line; std::getline(lines, line);) {
      if (!line.empty() && line.front() != '#') symbols.push_back(line);
    }
  }
  return sorted(symbols);
}

Names builtSymbols() {
#ifdef __APPLE__
  const std::string command = QUVARD_NM " -gU -j '" QUVARD_LIBRARY "'";
#else
  const std::string command = QUVARD_NM " -D --defined-only -P '" QUVARD_LIBRARY "'";
#endif
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  Names symbols;
  char line[1024];
  while (pipe != nullptr && std::fgets(line, sizeof line, pipe.get()) != nullptr) {
    std::string symbol = line;
    symbol.erase(std::min(symbol.find_first_of(" \n"), symbol.size()));
#ifdef __APPLE__
    symbol.erase(0, 1);
#endif
    symbols.push_back(symbol);
  }
  return sorted(symbols);
}

// The routines behind the symbols, without argument types.
Names routinesOf(const Names& symbols) {
  Names routines;
  for (const std::string& symbol : symbols) {
    std::string routine = symbol;
    // Encoded names alone: a plain one can be the code of a type, as Pi is of a pointer to int.
    if (symbol.starts_with("_Z")) {
      const std::unique_ptr<char, void (*)(void*)> name(
          abi::__cxa_demangle(symbol.c_str(), nullptr, nullptr, nullptr), std::free);
      if (name != nullptr) routine = name.get();
    }
    routine.erase(std::min(routine.find('('), routine.size()));
    routines.push_back(routine);
  }
  return sorted(routines);
}

TEST(Exports, HeaderListAndLibraryAgree) {
  const Names declared = sorted(declaredNames(contentOf(QUVARD_HEADER)));
  const Names listed = listedSymbols();
  const Names built = builtSymbols();
  ASSERT_GT(declared.size(), 0U);
  EXPECT_EQ(declared, routinesOf(listed));
  EXPECT_EQ(declared, routinesOf(built));
  EXPECT_EQ(listed, built);
}

TEST(Exports, DeclarationsAreReadFromTheText) {
  const std::string text =
      "/// QUVARDBS1C_API int no(void);\nQUVARDBS1C_API BSTR VB_One(BSTR s);\n"
      "QUVARDBS1C_API std::wstring Two(std::wstring a,\n  int b);\nint three(int);\n";
  EXPECT_EQ(declaredNames(text), (Names{"VB_One", "Two"}));
}

TEST(Exports, EveryDeclarationHasAnExample) {
  const std::string header = contentOf(QUVARD_HEADER);
  static const std::regex example("\n/// @b Example: `[^\n]*`\nQUVARDBS1C_API ");
  const auto examples =
      std::distance(std::sregex_iterator(header.begin(), header.end(), example), {});
  EXPECT_EQ(static_cast<std::size_t>(examples), declaredNames(header).size());
}

}  // namespace
