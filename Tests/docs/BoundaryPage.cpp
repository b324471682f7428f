#include "docs/PageTable.h"
#include "support/HostRoutines.h"

namespace {

std::string nameOf(const std::string& routine) { return "`" + routine + "`"; }

std::string inOf(const HostRoutine& routine) {
  const Path& path = *routine.path;
  if (routine.strings == 0) return "none";
  if (path.first.empty()) return "the handle itself";
  const bool alike = routine.strings == 1 || path.others == path.first;
  return nameOf(path.first) + (alike ? "" : ", then " + nameOf(path.others));
}

std::string outOf(const HostRoutine& routine) {
  const std::string& service = routine.path->result;
  if (!service.empty()) return nameOf(service);
  return routine.path == &kToWideText ? "wide text" : "a number";
}

std::string resultOfNullHandles(const HostRoutine& routine) {
  if (routine.strings == 0) return "takes none";
  const BSTR nulls[6] = {};
  const Text result = routine.call(nulls);
  if (result == kNullHandle) return "the null handle";
  return outOf(routine) == "a number" ? std::string(result.begin(), result.end())
                                      : inGuillemets(result);
}

}  // namespace

TEST(BoundaryPage, ServicesOfEachHostRoutine) {
  std::vector<Cells> rows{{"Routine", "Host strings", "In", "Out", "Result for null handles"}};
  for (const HostRoutine& routine : hostRoutines()) {
    if (routine.path == &kHandlesAlone) continue;  // no text crosses
    rows.push_back({nameOf(routine.name), std::to_string(routine.strings), inOf(routine),
                    outOf(routine), resultOfNullHandles(routine)});
  }
  expectTable("boundary.md", rows);
}
