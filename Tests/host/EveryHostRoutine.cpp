// Null, empty, one-unit and longer strings through every host routine, against a sibling library
// that records.
#include <list>

#include "recording/Recording.h"
#include "support/HostRoutines.h"

namespace {

// An argument that is sent: the null handle where it is null.
using Argument = const char16_t*;

void check(const HostRoutine& routine, const std::vector<Argument>& arguments) {
  const auto& [first, others, forResult, endsAtNull] = *routine.path;
  std::vector<std::string> calls;
  const auto called = [&calls](const std::string& service, const Text& text) {
    calls.push_back(service + "(" + std::string(text.begin(), text.end()) + ")");
  };
  std::list<B> owners;
  std::vector<BSTR> handles;
  Texts texts;
  bool ends = false;
  for (const Argument argument : arguments) {
    const bool null = argument == nullptr;
    texts.push_back(null ? L"" : widened(argument));
    const std::string& service = handles.empty() ? first : others;
    if (!service.empty() && (!null || routine.path == &kObject)) called(service, texts.back());
    ends |= endsAtNull && null && handles.size() < 2;
    handles.push_back(null ? nullptr : BSTR(owners.emplace_back(texts.back())));
  }
  const bool units = routine.path == &kUnitsOrNull, replaces = units && texts.size() == 3;
  const bool inPlace = replaces && !ends && texts[1].size() == 1 && texts[2].size() == 1;
  const std::size_t aliveBefore = recording.alive.size();
  recording.calls.clear();

  const Text result = routine.call(handles.data());

  ASSERT_EQ(result, units && ends ? L"(null handle)" : routine.expected(texts));
  if (replaces && !ends) std::swap(calls[0], calls[1]);  // it measures the pattern before the text
  if (!forResult.empty()) called(inPlace ? "SysAllocString16" : forResult, result);
  if (ends) calls.clear();
  ASSERT_EQ(recording.calls, calls);
  ASSERT_EQ(recording.alive.size(), aliveBefore);
  for (std::size_t i = 0; i < handles.size(); ++i) {
    ASSERT_EQ(handles[i] ? widened(handles[i]) : L"", inPlace && i == 0 ? result : texts[i]);
  }
}

}  // namespace

TEST(EveryHostRoutine, AllCombinationsOfArguments) {
  const std::vector<Argument> values{nullptr, u"", u"A", u" ", u":", u"7", u"US", u" a:7<BR>:A "};
  for (const HostRoutine& routine : hostRoutines()) {
    SCOPED_TRACE(routine.name);
    for (int i = 0; i < 6000; ++i) {  // enough to meet each combination of three
      std::vector<Argument> arguments(routine.strings);
      for (Argument& argument : arguments) argument = values[randomBelow(values.size())];
      check(routine, arguments);
      if (HasFatalFailure()) return;
    }
  }
}
