// The declarations of the chief header, the lists of exports and the built library name the same
// routines.
#include <cstdio>
#include <cstring>
#include <iterator>
#include <memory>
#include <set>

#include "TestPaths.h"
#include "support/HostRoutines.h"

namespace {

using Names = std::multiset<std::string>;

Names namesOf(const std::string& command) {
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  Names names;
  for (char line[1024]; std::fgets(line, sizeof line, pipe.get()) != nullptr;) {
    names.emplace(line, std::strcspn(line, "\n"));
  }
  EXPECT_FALSE(names.empty()) << "no name: " << command;
  return names;
}

void expectSameNames(const std::string& actualPlace, const Names& actual,
                     const std::string& expectedPlace, const Names& expected) {
  const auto expectAll = [](const Names& names, const std::string& place, const Names& others) {
    Names missing;
    std::set_difference(names.begin(), names.end(), others.begin(), others.end(),
                        std::inserter(missing, missing.end()));
    for (const std::string& name : missing) ADD_FAILURE() << place << " lacks " << name;
  };
  expectAll(expected, actualPlace, actual);
  expectAll(actual, expectedPlace, expected);
}

// The declarations of the header, each on one line.
const std::string kDeclarations =
    "awk '/^QUVARDBS1C_API /{d=\"\"} {d=d $0} /;/{if(d~/^QUVARDBS1C_API /)print d; "
    "d=\"\"}' " QUVARD_HEADER;
const std::string kName = " | sed -E 's/\\(.*//;s/.*[ *]//'";
const std::string kListed = "sed '/^#/d' " QUVARD_EXPORT_LISTS;

}  // namespace

TEST(Exports, HeaderListAndLibraryAgree) {
  expectSameNames("the list of exports", namesOf(kListed + " | c++filt -n | cut -d'(' -f1"),
                  "the header", namesOf(kDeclarations + kName));
  expectSameNames("the library", namesOf(QUVARD_SYMBOLS), "the list of exports", namesOf(kListed));
}

TEST(Exports, EveryDeclarationHasAnExample) {
  const Names exemplified = namesOf(
      "sed -n '/^\\/\\/\\/ @b Example: `.*`$/{n;/^QUVARDBS1C_API /p;}' " QUVARD_HEADER + kName);
  expectSameNames("the header's examples", exemplified, "the header",
                  namesOf(kDeclarations + kName));
}

TEST(Exports, EveryHostRoutineIsInTheTable) {
  Names tested;
  for (const HostRoutine& routine : hostRoutines()) tested.insert(routine.name);
  expectSameNames("hostRoutines()", tested, "the header",
                  namesOf(kDeclarations + " | grep -w BSTR" + kName));
}
