// Host routines and wide routines. Host routines get null handles, the same handle twice, and handles
// into another argument.
#include <deque>

#include "fuzz/Checks.h"

namespace {

// A host string and its expected text.
struct Owner {
  explicit Owner(const Text& units) : handle(units), text(handle.text()) {}
  B handle;
  Text text;
};

// A handle into a host string.
struct Argument {
  Owner* owner = nullptr;  // null for the null handle
  std::size_t start = 0;   // position in the owner's text

  BSTR handle() const { return owner == nullptr ? nullptr : owner->handle + start; }
  Text text() const { return owner == nullptr ? kNullHandle : owner->text.substr(start); }
};

Argument draw(Random& random, std::deque<Owner>& owners) {
  const std::size_t choice = random.below(6);
  if (choice == 0) return {};
  if (choice < 3 && !owners.empty()) {
    Owner& owner = owners[random.below(owners.size())];
    return {&owner, choice == 1 ? 0 : random.below(owner.text.size() + 1)};
  }
  Texts texts;
  for (const Owner& owner : owners) texts.push_back(owner.text);
  return {&owners.emplace_back(drawText(random, texts))};
}

Numbers numbers;

testing::AssertionResult checkHost(const HostRoutine& routine, Random& random) {
  numbers = drawNumbers(random);
  std::deque<Owner> owners;
  std::vector<Argument> arguments;
  Texts texts;
  std::vector<BSTR> handles;
  std::string starts;
  while (texts.size() < routine.strings) {
    const Argument argument = arguments.emplace_back(draw(random, owners));
    handles.push_back(argument.handle());
    texts.push_back(argument.text());
    starts.append(" ").append(std::to_string(argument.start));
  }
  const auto call = [&] { return routine.show(texts) + ", start positions" + starts; };
  const Text expected = routine.expected(texts);
  auto result = isSame(routine.call(handles.data()), expected, call);
  if (routine.worksInPlace(texts)) {
    arguments[0].owner->text.replace(arguments[0].start, expected.size(), expected);
  }
  for (const Owner& owner : owners) {
    if (!result) break;
    result = isSame(owner.handle.text(), owner.text, [&] { return "an argument of " + call(); });
  }
  return result;
}

testing::AssertionResult checkWide(const HostRoutine& routine, Random& random) {
  numbers = drawNumbers(random);
  Texts texts;
  while (texts.size() < routine.strings) texts.push_back(drawText(random, texts));
  const auto call = [&] { return "wide form of " + routine.show(texts); };
  return isSame(named(call, [&] { return routine.wide(texts); }), routine.reference(texts), call);
}

}  // namespace

const Checks& checksOfTexts() {
  static const Checks checks = [] {
    Checks all;
    for (const HostRoutine& routine : hostRoutines(numbers)) {
      all.push_back(
          {routine.name, [routine](Random& random) { return checkHost(routine, random); }});
      if (!routine.wide) continue;
      all.push_back(
          {routine.name, [routine](Random& random) { return checkWide(routine, random); }});
    }
    return all;
  }();
  return checks;
}
