// Host routines, given null handles, one handle twice, and handles into another's text.
#include "support/HostRoutines.h"
#include "fuzz/Checks.h"

namespace {

// A host string, and what it is to hold.
struct Owner {
  explicit Owner(const Text& units) : handle(units), text(handle.text()) {}
  B handle;
  Text text;
};

struct Argument {
  Owner* owner = nullptr;  // none for the null handle
  std::size_t start = 0;   // where in the text of the owner the handle points to

  BSTR handle() const { return owner == nullptr ? nullptr : owner->handle + start; }
  Text text() const { return owner == nullptr ? kNullHandle : owner->text.substr(start); }
};

Argument draw(Random& random, std::list<Owner>& owners, const std::vector<Argument>& drawn) {
  const std::size_t choice = random.below(6);
  if (choice == 0) return {};
  if (choice < 3 && !drawn.empty()) {
    Argument argument = drawn[random.below(drawn.size())];
    if (choice == 1 && argument.owner != nullptr) {
      argument.start += random.below(argument.text().size() + 1);
    }
    return argument;
  }
  Texts texts;
  for (const Owner& owner : owners) texts.push_back(owner.text);
  return {&owners.emplace_back(drawText(random, texts))};
}

Numbers numbers;

testing::AssertionResult checkRoutine(const HostRoutine& routine, Random& random) {
  numbers = {drawInteger(random), drawInteger(random), drawDecimals(random), drawFlag(random),
             drawFlag(random),    drawFlag(random),    drawDouble(random)};
  std::list<Owner> owners;
  std::vector<Argument> arguments;
  Texts texts;
  std::vector<BSTR> handles;
  std::string starts;
  while (texts.size() < routine.strings) {
    const Argument argument = arguments.emplace_back(draw(random, owners, arguments));
    handles.push_back(argument.handle());
    texts.push_back(argument.text());
    starts.append(" ").append(std::to_string(argument.start));
  }
  const auto call = [&] {
    return routine.show(texts) + ", from these units of other texts on:" + starts;
  };
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

}  // namespace

const Checks& checksOfHostRoutines() {
  static const Checks checks = [] {
    Checks all;
    for (const HostRoutine& routine : hostRoutines(numbers)) {
      all.push_back(
          {routine.name, [routine](Random& random) { return checkRoutine(routine, random); }});
    }
    return all;
  }();
  return checks;
}
