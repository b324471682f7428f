// What the chief header declares, read from its text.
#ifndef TESTS_SUPPORT_CHIEFHEADER_H
#define TESTS_SUPPORT_CHIEFHEADER_H

#include <fstream>
#include <regex>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

inline std::string contentOf(const std::string& path) {
  std::ifstream file(path);
  if (!file) throw std::runtime_error("cannot read " + path);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

// The names of the routines that the text declares, in its order; an overload stands twice.
inline std::vector<std::string> declaredNames(const std::string& header) {
  static const std::regex declaration("\nQUVARDBS1C_API [a-z0-9_:A-Z ]*[ *]([A-Za-z0-9_]+)\\(");
  std::vector<std::string> names;
  for (std::sregex_iterator match(header.begin(), header.end(), declaration), end; match != end;
       ++match) {
    names.push_back((*match)[1]);
  }
  return names;
}

#endif
