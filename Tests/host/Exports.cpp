// The declarations of the chief header, the lists of exports and the built library name the same
// routines.
#include <cstdio>
#include <memory>
#include <set>

#include "TestPaths.h"
#include "support/HostRoutines.h"

namespace {

using Lines = std::multiset<std::string>;

Lines linesOf(const std::string& command) {
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  Lines lines;
  for (char line[1024]; std::fgets(line, sizeof line, pipe.get()) != nullptr;) lines.insert(line);
  return lines;
}

// The routines that the header declares, an overload twice.
const std::string kDeclared =
    "sed -nE 's/^QUVARDBS1C_API .*[ *]([A-Za-z0-9_]+)\\(.*/\\1/p' " QUVARD_HEADER;
const std::string kListed = "sed '/^#/d' " QUVARD_EXPORT_LISTS;

}  // namespace

TEST(Exports, HeaderListAndLibraryAgree) {
  ASSERT_GT(linesOf(kDeclared).size(), 0U);
  EXPECT_EQ(linesOf(kDeclared), linesOf(kListed + " | c++filt -n | cut -d'(' -f1"));
  EXPECT_EQ(linesOf(kListed), linesOf(QUVARD_SYMBOLS));
}

TEST(Exports, EveryDeclarationHasAnExample) {
  const Lines behindExamples =
      linesOf("sed -n '/^\\/\\/\\/ @b Example: `.*`$/{n;/^QUVARDBS1C_API /p;}' " QUVARD_HEADER);
  EXPECT_EQ(behindExamples.size(), linesOf(kDeclared).size());
}

TEST(Exports, EveryHostRoutineIsInTheTable) {
  Lines tested;
  for (const HostRoutine& routine : hostRoutines()) tested.insert(routine.name + "\n");
  EXPECT_EQ(linesOf(kDeclared + " | grep -E '^(VB_|Cpp_|ChrCount|StrFrom|StrBetween)'"), tested);
}
