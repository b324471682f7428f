// Null, empty, one-unit and longer strings through every host routine, against a sibling library
// that records.
#include "recording/Recording.h"
#include "support/HostRoutines.h"

namespace {

// The service calls of a call with these texts.
ServiceCalls serviceCalls(const HostRoutine& routine, const Texts& texts, const Text& result) {
  const Path& path = *routine.path;
  ServiceCalls calls;
  const auto add = [&calls](const std::string& service, const Text& text) {
    if (!service.empty()) calls.emplace_back(service, text);
  };
  if (routine.isEndedBy(texts)) return calls;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const std::size_t taken = path.order.empty() ? i : path.order[i];
    const bool isNull = texts[taken] == kNullHandle;
    if (isNull && &path != &kObject) continue;
    add(taken == 0 ? path.first : path.others, isNull ? L"" : texts[taken]);
  }
  add(routine.worksInPlace(texts) ? path.resultInPlace : path.result, result);
  return calls;
}

// The call at a place, or that there is none.
std::string showAt(const ServiceCalls& calls, std::size_t place) {
  return place < calls.size() ? showCall(calls[place].first, calls[place].second) : "none";
}

void expectSame(const ServiceCalls& made, const ServiceCalls& due) {
  const auto first = std::mismatch(made.begin(), made.end(), due.begin(), due.end()).first;
  const auto place = static_cast<std::size_t>(first - made.begin());
  EXPECT_TRUE(made == due) << "service call " << place + 1 << " of " << due.size()
                           << "\n  is       " << showAt(made, place) << "\n  expected "
                           << showAt(due, place);
}

void check(const HostRoutine& routine, Texts texts) {
  SCOPED_TRACE(routine.show(texts));
  const Strings strings(texts);
  const Text expected = routine.expected(texts);
  const std::size_t aliveBefore = recording.alive.size();
  recording.calls.clear();
  EXPECT_EQ(routine.call(strings.handles()), expected);
  expectSame(recording.calls, serviceCalls(routine, texts, expected));
  EXPECT_EQ(recording.alive.size(), aliveBefore) << "is the number of host strings that are left";
  if (routine.worksInPlace(texts)) texts[0] = expected;
  EXPECT_EQ(strings.texts(), texts) << "are the arguments afterwards";
}

}  // namespace

TEST_EACH_HOST_ROUTINE(ServiceCalls) {
  const Texts values{L" a:7<BR>:A ", kNullHandle, L"A", L":", L"", L"US", L" ", L"7"};
  // Of the routines with more strings, fewer values. The digits of a number choose among them.
  const std::size_t count = routine.strings <= 3 ? values.size() : 4;
  for (std::size_t number = 0; !testing::Test::HasFailure(); ++number) {
    Texts texts;
    std::size_t rest = number;
    for (; texts.size() < routine.strings; rest /= count) texts.push_back(values[rest % count]);
    if (rest > 0) break;
    check(routine, texts);
  }
}
