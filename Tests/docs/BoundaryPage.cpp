#include "docs/PageTable.h"
#include "support/HostRoutines.h"

namespace {

std::string nameOf(const std::string& routine) { return "`" + routine + "`"; }

std::string inOf(const HostRoutine& routine) {
  const auto& [first, others, result, endsAtNull] = *routine.path;
  if (routine.strings == 0) return "none";
  if (first.empty()) return "the handle itself";
  return nameOf(first) + (others == first ? "" : ", then " + nameOf(others));
}

std::string resultOfNullHandles(const HostRoutine& routine) {
  if (routine.strings == 0) return "takes none";
  const BSTR nulls[6] = {};
  const Text result = routine.call(nulls);
  if (result == taken(nullptr)) return "the null handle";
  const bool isNumber = routine.path->result.empty();
  return isNumber ? std::string(result.begin(), result.end()) : inGuillemets(result);
}

}  // namespace

TEST(BoundaryPage, WayOfEachHostRoutine) {
  std::vector<Cells> rows;
  for (const HostRoutine& routine : hostRoutines()) {
    const std::string& out = routine.path->result;
    rows.push_back({nameOf(routine.name), std::to_string(routine.strings), inOf(routine),
                    out.empty() ? "a number" : nameOf(out), resultOfNullHandles(routine)});
  }
  expectTable("boundary.md", {"Routine", "Host strings", "In", "Out", "Null handles give"}, rows);
}
