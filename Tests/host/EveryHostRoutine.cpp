// Null, empty, one-unit and longer strings through every host routine, against a sibling library
// that records.
#include <list>

#include "recording/Recording.h"
#include "support/HostRoutines.h"

namespace {

// An argument that is sent: the null handle where it is null.
using Argument = const char16_t*;
using Arguments = std::vector<Argument>;

std::string showArguments(const HostRoutine& routine, const Arguments& arguments) {
  std::string list;
  for (const Argument argument : arguments) {
    list += (list.empty() ? "" : ", ") + (argument ? show(widen(argument)) : show(nullptr));
  }
  return routine.name + "(" + list + ")";
}

void check(const HostRoutine& routine, const Arguments& arguments) {
  const Path& path = *routine.path;
  std::list<B> owners;
  std::vector<BSTR> handles;
  Texts texts;
  bool ends = false;
  for (const Argument argument : arguments) {
    ends |= path.endsAtNull && argument == nullptr && handles.size() < 2;
    texts.push_back(argument == nullptr ? L"" : widen(argument));
    handles.push_back(argument == nullptr ? nullptr : BSTR(owners.emplace_back(texts.back())));
  }
  const bool inPlace = !ends && routine.worksInPlace(texts);
  const Text expected = ends && !path.result.empty() ? kNullHandle : routine.expected(texts);

  std::vector<std::string> calls;
  const auto addCall = [&calls](const std::string& service, const Text& text) {
    if (!service.empty())
      calls.push_back(service + "(" + std::string(text.begin(), text.end()) + ")");
  };
  for (std::size_t i = 0; i < arguments.size() && !ends; ++i) {
    const std::size_t taken = path.order.empty() ? i : path.order[i];
    if (arguments[taken] == nullptr && &path != &kObject) continue;
    addCall(taken == 0 ? path.first : path.others, texts[taken]);
  }
  if (!ends) addCall(inPlace ? path.resultInPlace : path.result, expected);

  const std::size_t aliveBefore = recording.alive.size();
  recording.calls.clear();
  const Text result = routine.call(handles.data());
  ASSERT_EQ(recording.calls, calls) << "of " << showArguments(routine, arguments);
  ASSERT_EQ(recording.alive.size(), aliveBefore) << "of " << showArguments(routine, arguments);
  ASSERT_EQ(result, expected) << "of " << showArguments(routine, arguments);
  if (inPlace) texts[0] = result;
  for (std::size_t i = 0; i < handles.size(); ++i) {
    ASSERT_EQ(handles[i] == nullptr ? L"" : widen(handles[i]), texts[i])
        << "argument " << i << " after " << showArguments(routine, arguments);
  }
}

}  // namespace

TEST(EveryHostRoutine, AllCombinationsOfArguments) {
  const Arguments values{u" a:7<BR>:A ", nullptr, u"A", u":", u"", u"US", u" ", u"7"};
  for (const HostRoutine& routine : hostRoutines()) {
    // Of the routines with more strings, fewer values.
    const std::size_t count = routine.strings <= 3 ? values.size() : 4;
    std::vector<std::size_t> choice(routine.strings);
    for (std::size_t digit = 0; digit <= choice.size();) {
      Arguments arguments;
      for (const std::size_t i : choice) arguments.push_back(values[i]);
      check(routine, arguments);
      if (HasFatalFailure()) break;
      // The next combination, counted like a number.
      for (digit = 0; digit < choice.size() && ++choice[digit] == count; ++digit) choice[digit] = 0;
      if (digit == choice.size()) break;
    }
  }
}
