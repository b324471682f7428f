// The header, the lists of exports and the library have the same routines.
#include <cstdio>
#include <memory>
#include <numeric>
#include <set>

#include "TestPaths.h"
#include "support/HostRoutines.h"

namespace {

// The sorted output of a command.
std::string linesOf(const std::string& command) {
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(
      popen(("{ " + command + "; } | LC_ALL=C sort").c_str(), "r"), pclose);
  std::string lines;
  for (char line[1024]; std::fgets(line, sizeof line, pipe.get()) != nullptr;) lines += line;
  EXPECT_NE(lines, "") << "is the output of " << command;
  return lines;
}

// The declarations of the header, each on one line.
const std::string kDeclarations =
    "awk '/^QUVARDBS1C_API /{d=\"\"} {d=d $0} /;/{if(d~/^QUVARDBS1C_API /)print d; "
    "d=\"\"}' " QUVARD_HEADER;
const std::string kName = " | sed -E 's/\\(.*//;s/.*[ *]//'";
const std::string kListed = "sed '/^#/d' " QUVARD_EXPORT_LISTS;

}  // namespace

TEST(Exports, HeaderListAndLibraryAgree) {
  EXPECT_EQ(linesOf(kListed + " | c++filt -n | cut -d'(' -f1"), linesOf(kDeclarations + kName))
      << "The list of exports and the header.";
  EXPECT_EQ(linesOf(QUVARD_SYMBOLS), linesOf(kListed)) << "The library and the list of exports.";
}

TEST(Exports, EveryDeclarationHasAnExample) {
  EXPECT_EQ(
      linesOf("sed -n '/^\\/\\/\\/ @b Example: `.*`$/{n;/^QUVARDBS1C_API /p;}' " QUVARD_HEADER +
              kName),
      linesOf(kDeclarations + kName))
      << "The header's examples and its declarations.";
}

TEST(Exports, EveryHostRoutineIsInTheTable) {
  std::multiset<std::string> names;
  for (const HostRoutine& routine : hostRoutines()) names.insert(routine.name + "\n");
  EXPECT_EQ(std::accumulate(names.begin(), names.end(), std::string()),
            linesOf(kDeclarations + " | grep -w BSTR" + kName))
      << "hostRoutines() and the header.";
}
