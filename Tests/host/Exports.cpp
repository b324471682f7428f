// The declarations of the chief header, the lists of exports and the built library name the same
// routines.
#include <cstdio>
#include <memory>
#include <numeric>
#include <set>

#include "TestPaths.h"
#include "support/HostRoutines.h"

namespace {

// The lines that a command prints, in order.
std::string namesOf(const std::string& command) {
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(
      popen(("{ " + command + "; } | LC_ALL=C sort").c_str(), "r"), pclose);
  std::string names;
  for (char line[1024]; std::fgets(line, sizeof line, pipe.get()) != nullptr;) names += line;
  EXPECT_NE(names, "") << "is what it prints: " << command;
  return names;
}

// The declarations of the header, each on one line.
const std::string kDeclarations =
    "awk '/^QUVARDBS1C_API /{d=\"\"} {d=d $0} /;/{if(d~/^QUVARDBS1C_API /)print d; "
    "d=\"\"}' " QUVARD_HEADER;
const std::string kName = " | sed -E 's/\\(.*//;s/.*[ *]//'";
const std::string kListed = "sed '/^#/d' " QUVARD_EXPORT_LISTS;

}  // namespace

// Where names differ, the failure has the lines that only one of both has.
TEST(Exports, HeaderListAndLibraryAgree) {
  EXPECT_EQ(namesOf(kListed + " | c++filt -n | cut -d'(' -f1"), namesOf(kDeclarations + kName))
      << "The list of exports, and the header.";
  EXPECT_EQ(namesOf(QUVARD_SYMBOLS), namesOf(kListed)) << "The library, and the list of exports.";
}

TEST(Exports, EveryDeclarationHasAnExample) {
  EXPECT_EQ(
      namesOf("sed -n '/^\\/\\/\\/ @b Example: `.*`$/{n;/^QUVARDBS1C_API /p;}' " QUVARD_HEADER +
              kName),
      namesOf(kDeclarations + kName))
      << "The header's examples, and the header.";
}

TEST(Exports, EveryHostRoutineIsInTheTable) {
  std::multiset<std::string> names;
  for (const HostRoutine& routine : hostRoutines()) names.insert(routine.name + "\n");
  EXPECT_EQ(std::accumulate(names.begin(), names.end(), std::string()),
            namesOf(kDeclarations + " | grep -w BSTR" + kName))
      << "hostRoutines(), and the header.";
}
