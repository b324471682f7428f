// The service calls of every host routine for null, empty, one-unit and longer host strings, against a
// QUVARDCR1C that records them.
#include "recording/Recording.h"
#include "support/HostRoutines.h"

namespace {

// Service calls are compared as lines, since GoogleTest shows which lines differ.
std::string lineOf(const std::string& service, const Text& text) {
  return service.empty() ? "" : service + "(" + testing::PrintToString(text) + ")\n";
}

std::string expectedLines(const HostRoutine& routine, const Texts& texts, const Text& result) {
  const Path& path = *routine.path;
  std::string lines;
  if (routine.isEndedBy(texts)) return lines;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const std::size_t argument = path.order.empty() ? i : path.order[i];
    const bool isNull = texts[argument] == kNullHandle;
    if (isNull && &path != &kObject) continue;
    lines += lineOf(argument == 0 ? path.first : path.others, isNull ? L"" : texts[argument]);
  }
  return lines + lineOf(routine.worksInPlace(texts) ? path.resultInPlace : path.result, result);
}

void check(const HostRoutine& routine, Texts texts) {
  SCOPED_TRACE(routine.show(texts));
  const Strings strings(texts);
  const Text expected = routine.expected(texts);
  const std::size_t aliveBefore = recording.alive.size();
  recording.calls.clear();
  EXPECT_EQ(routine.call(strings.handles()), expected);
  std::string lines;
  for (const auto& [service, text] : recording.calls) lines += lineOf(service, text);
  EXPECT_EQ(lines, expectedLines(routine, texts, expected));
  EXPECT_EQ(recording.alive.size(), aliveBefore) << "host strings exist after the call";
  if (routine.worksInPlace(texts)) texts[0] = expected;
  EXPECT_EQ(strings.texts(), texts) << "are the arguments after the call";
}

}  // namespace

TEST_EACH_HOST_ROUTINE(ServiceCalls) {
  const Texts values{L" a:7<BR>:A ", kNullHandle, L"A", L":", L"", L"US", L" ", L"7"};
  // Routines with many host strings get fewer values. The digits of `number` select them.
  const std::size_t count = routine.strings <= 3 ? values.size() : 4;
  for (std::size_t number = 0; !testing::Test::HasFailure(); ++number) {
    Texts texts;
    std::size_t rest = number;
    for (; texts.size() < routine.strings; rest /= count) texts.push_back(values[rest % count]);
    if (rest > 0) break;
    check(routine, texts);
  }
}
