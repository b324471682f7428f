// The declarations for Visual Basic are those of the headers: names, number, kinds and order of all
// arguments, and results.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "VisualBasicPaths.h"

namespace {

struct Argument {
  std::string type, name;
};

struct Routine {
  std::string result, name;
  std::vector<Argument> arguments;

  std::string kind() const { return result == "void" ? "Sub " : "Function "; }
  bool deals(const std::string& type) const {
    return result == type || std::any_of(arguments.begin(), arguments.end(),
                                         [&](const Argument& a) { return a.type == type; });
  }
};

std::string textOf(const std::string& path) {
  std::ifstream file(path);
  std::ostringstream text;
  text << file.rdbuf();
  EXPECT_FALSE(text.str().empty()) << path << " is missing or empty";
  return text.str();
}

std::vector<std::smatch> matches(const std::string& text, const std::string& pattern) {
  const std::regex regex(pattern);
  return {std::sregex_iterator(text.begin(), text.end(), regex), std::sregex_iterator()};
}

// What a C caller sees of a header that the C preprocessor has been through.
std::vector<Routine> routinesOf(const std::string& header) {
  std::vector<Routine> routines;
  const std::string text = textOf(header);
  for (const std::smatch& found :
       matches(text, R"re("default"\)\)\)\s+([\w\s]+?[\s*]+)(\w+)\(([^)]*)\))re")) {
    const auto type = [](const std::string& c) {
      return std::regex_replace(c, std::regex(R"(\s+$)"), "");
    };
    Routine routine{type(found[1]), found[2], {}};
    const std::string arguments = found[3];
    for (const std::smatch& one : matches(arguments, R"re((\w[\w\s]*[\s*]+)(\w+))re")) {
      routine.arguments.push_back({type(one[1]), one[2]});
    }
    routines.push_back(routine);
  }
  return routines;
}

// What stands for a type of C, with $ for the argument's name.
struct Kinds {
  std::map<std::string, std::string> arguments, results;
};

std::string signature(const Routine& routine, const Kinds& kinds) {
  const auto kind = [&](const std::map<std::string, std::string>& table, const std::string& type) {
    const auto row = table.find(type);
    return row == table.end() ? std::string("nothing for ") + type : row->second;
  };
  std::string text = "(";
  for (const Argument& argument : routine.arguments) {
    if (text.size() > 1) text += ", ";
    // To is a word of the language.
    const std::string name = argument.name == "to" ? "to_" : argument.name;
    text += std::regex_replace(kind(kinds.arguments, argument.type), std::regex(R"(\$)"), name);
  }
  text += ")";
  return routine.result == "void" ? text : text + " As " + kind(kinds.results, routine.result);
}

struct File {
  std::string path;
  std::string safety;         // the word that hosts of 64 bits want
  Kinds declarations;         // of what is declared to callers
  Kinds privateDeclarations;  // of what a function of the file calls
  Kinds functions;
  bool (*needsFunction)(const Routine&);
};

const std::string kText = "<MarshalAs(LPWStr)> ByVal $ As String";
const std::string kResult =
    "<MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String";

const File kNet = {
    QUVARD_VB,
    "",
    {{{"BSTR", kText},
      {"BSTR*", "ByRef $ As IntPtr"},
      {"HostBool", "ByVal $ As HostBool"},
      {"int32_t", "ByVal $ As Integer"},
      {"int32_t*", "ByRef $ As Integer"},
      {"double", "ByVal $ As Double"},
      {"double*", "ByRef $ As Double"}},
     {{"BSTR", kResult}, {"HostBool", "Boolean"}, {"int32_t", "Integer"}, {"double", "Double"}}},
    {{{"BSTR", "ByVal $ As IntPtr"},
      {"BSTR*", "ByRef $ As IntPtr"},
      {"const QUVARDUnit16*", kText},
      {"int32_t", "ByVal $ As Integer"}},
     {{"BSTR", "IntPtr"}}},
    {{{"BSTR", "ByVal $ As String"},
      {"BSTR*", "ByVal $ As String()"},
      {"int32_t", "ByVal $ As Integer"}},
     {{"BSTR", "String"}}},
    // The one that writes to its text, where a String does not do, and the one that makes an array.
    [](const Routine& r) { return r.name == "VB_Replace" || r.name == "VB_SetFormat"; }};

const Kinds kApplicationHandles = {{{"BSTR", "ByVal $ As LongPtr"},
                                    {"BSTR*", "ByRef $ As LongPtr"},
                                    {"const QUVARDUnit16*", "ByVal $ As LongPtr"},
                                    {"HostBool", "ByVal $ As Long"},
                                    {"int32_t", "ByVal $ As Long"},
                                    {"int32_t*", "ByRef $ As Long"},
                                    {"double", "ByVal $ As Double"},
                                    {"double*", "ByRef $ As Double"}},
                                   {{"BSTR", "LongPtr"},
                                    {"HostBool", "Long"},
                                    {"int32_t", "Long"},
                                    {"size_t", "LongPtr"},
                                    {"double", "Double"}}};

const File kApplication = {
    QUVARD_BAS,
    "PtrSafe ",
    kApplicationHandles,
    kApplicationHandles,
    {{{"BSTR", "ByVal $ As String"},
      {"BSTR*", "ByRef $() As String"},
      {"HostBool", "ByVal $ As Boolean"},
      {"int32_t", "ByVal $ As Long"},
      {"double", "ByVal $ As Double"},
      {"double*", "ByRef $ As Double"}},
     {{"BSTR", "String"}, {"HostBool", "Boolean"}, {"int32_t", "Long"}, {"double", "Double"}}},
    // Texts and flags are handed on by a function.
    [](const Routine& r) {
      return r.deals("BSTR") || r.deals("HostBool") || r.name == "VB_SetFormat";
    }};

// The lines of a file without comments, each with those that continue it.
std::vector<std::string> logicalLines(const std::string& path) {
  std::vector<std::string> lines;
  std::istringstream file(textOf(path));
  std::string whole;
  for (std::string line; std::getline(file, line);) {
    whole += std::string(" ").append(line, 0, line.find('\''));
    whole = std::regex_replace(whole, std::regex(R"(\s+)"), " ");
    whole = std::regex_replace(whole, std::regex(R"(^ | $)"), "");
    const bool open =
        std::count(whole.begin(), whole.end(), '(') > std::count(whole.begin(), whole.end(), ')');
    if (whole.size() > 1 && whole.substr(whole.size() - 2) == " _") {
      whole.resize(whole.size() - 2);
    } else if (!open) {
      whole = std::regex_replace(whole, std::regex(R"(\( )"), "(");
      lines.push_back(std::regex_replace(whole, std::regex(R"( \))"), ")"));
      whole.clear();
    }
  }
  return lines;
}

// Names with their declarations; a name that is declared twice is there twice.
using Declarations = std::multimap<std::string, std::string>;

// What the file declares from a library, by the exported names.
Declarations declarationsOf(const File& file, const std::string& library) {
  Declarations declarations;
  const std::regex pattern(
      R"re((\w+ Declare (?:PtrSafe )?\w+) (\w+) Lib "([^"]*)"(?: Alias "(\w+)")? ?(\(.*))re");
  for (const std::string& line : logicalLines(file.path)) {
    std::smatch found;
    if (!std::regex_match(line, found, pattern) || found[3] != library) continue;
    const std::string name = found[4].matched ? found[4] : found[2];
    declarations.emplace(name, found[1].str() + " " + name + found[5].str());
  }
  return declarations;
}

// The public functions, without what callers may leave out.
Declarations functionsOf(const File& file) {
  Declarations functions;
  const std::regex pattern(R"re(Public (?:Function|Sub) (\w+)\(.*)re");
  for (const std::string& line : logicalLines(file.path)) {
    std::smatch found;
    if (!std::regex_match(line, found, pattern)) continue;
    functions.emplace(found[1], std::regex_replace(line, std::regex(", Optional [^,)]*"), ""));
  }
  return functions;
}

std::string under(const std::string& name, const Declarations& declarations) {
  std::string text;
  const auto [begin, end] = declarations.equal_range(name);
  for (auto row = begin; row != end; ++row) text += (text.empty() ? "" : " and ") + row->second;
  return text.empty() ? "nothing" : text;
}

void expectSame(const File& file, const Declarations& actual, const Declarations& expected) {
  std::set<std::string> names;
  for (const Declarations& some : {actual, expected}) {
    for (const auto& row : some) names.insert(row.first);
  }
  for (const std::string& name : names) {
    if (under(name, actual) == under(name, expected)) continue;
    ADD_FAILURE() << name << " in " << file.path << "\n  expected " << under(name, expected)
                  << "\n  actual   " << under(name, actual);
  }
}

void expectHeaders(const File& file) {
  const auto declared = [&](const Routine& routine, bool isPrivate) {
    return std::string(isPrivate ? "Private Declare " : "Public Declare ") + file.safety +
           routine.kind() + routine.name +
           signature(routine, isPrivate ? file.privateDeclarations : file.declarations);
  };
  Declarations expected, expectedFunctions, functions;
  for (const Routine& routine : routinesOf(QUVARD_C_HEADER)) {
    expected.emplace(routine.name, declared(routine, file.needsFunction(routine)));
    if (!file.needsFunction(routine)) continue;
    expectedFunctions.emplace(routine.name, std::string("Public ") + routine.kind() + routine.name +
                                                signature(routine, file.functions));
  }
  ASSERT_FALSE(expected.empty());
  expectSame(file, declarationsOf(file, "QUVARDBS1C.dll"), expected);

  for (const auto& row : functionsOf(file)) {
    if (expected.count(row.first) > 0) functions.insert(row);
  }
  expectSame(file, functions, expectedFunctions);

  // Of the sibling, a file declares what its own functions need.
  const Declarations ofSibling = declarationsOf(file, "QUVARDCR1C.dll");
  Declarations expectedOfSibling;
  for (const Routine& routine : routinesOf(QUVARD_C_SIBLING_HEADER)) {
    if (ofSibling.count(routine.name) == 0) continue;
    expectedOfSibling.emplace(routine.name, declared(routine, true));
  }
  expectSame(file, ofSibling, expectedOfSibling);
}

}  // namespace

TEST(VisualBasicDeclarations, ForNetAreThoseOfTheHeaders) { expectHeaders(kNet); }

TEST(VisualBasicDeclarations, ForApplicationsAreThoseOfTheHeaders) { expectHeaders(kApplication); }

// Its hosts want declarations in front of the first procedure, and read files in an encoding of their own.
TEST(VisualBasicDeclarations, ForApplicationsHaveTheFormOfTheirHosts) {
  bool procedures = false;
  for (const std::string& line : logicalLines(kApplication.path)) {
    procedures =
        procedures || std::regex_match(line, std::regex(R"((Public|Private) (Function|Sub) .*)"));
    EXPECT_FALSE(procedures && line.find(" Declare ") != std::string::npos) << line;
  }
  EXPECT_TRUE(procedures);
  const std::string text = textOf(kApplication.path);
  EXPECT_TRUE(std::all_of(text.begin(), text.end(), [](char c) { return c >= 0 && c < 127; }));
}
