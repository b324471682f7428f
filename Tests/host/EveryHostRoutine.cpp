// Null, empty and one-unit strings through every host routine, against a sibling library that
// records.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "TestPaths.h"
#include "recording/Recording.h"
#include "support/ChiefHeader.h"
#include "support/HostRoutines.h"

namespace {

using Calls = std::vector<std::string>;

std::string call(const std::string& service, const std::wstring& text) {
  const std::u16string units = narrowed(text);
  std::string result = service + "(";
  for (const char16_t unit : units) result.push_back(static_cast<char>(unit));
  return result + ")";
}

// One of the arguments that are sent: the null handle where `text` is null.
using Argument = const char16_t*;
constexpr Argument kArguments[] = {nullptr, u"", u"A", u" ", u":", u"7"};

std::wstring textOf(Argument argument) { return argument == nullptr ? L"" : widened(argument); }

// The service that takes the string at `index` in, if it is not null.
std::string serviceIn(Path path, std::size_t index) {
  if (path == Path::object) return "convertBSTRtoWstring";
  const bool byUnits = path == Path::unit || (path == Path::bufferAndUnit && index > 0);
  return byUnits ? "wcslen16" : "CW162W32";
}

Calls expectedCalls(const HostRoutine& routine, const std::vector<Argument>& arguments,
                    const std::wstring& result, bool oneForOne) {
  const bool nullText = !arguments.empty() && arguments[0] == nullptr;
  const bool nullSecond = arguments.size() > 1 && arguments[1] == nullptr;
  if (routine.path == Path::unit && (nullText || nullSecond)) return {};
  if (routine.path == Path::bufferNoNull && (nullText || nullSecond)) return {};
  if (routine.path == Path::none) return {call("SysAllocString16", result)};

  Calls calls;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (arguments[i] != nullptr || routine.path == Path::object) {
      calls.push_back(call(serviceIn(routine.path, i), textOf(arguments[i])));
    }
  }
  // VB_Replace measures the pattern before the text.
  if (routine.path == Path::unit && arguments.size() > 1) std::swap(calls[0], calls[1]);
  if (routine.givesString) {
    const bool byObject = routine.path == Path::object;
    calls.push_back(call(oneForOne  ? "SysAllocString16"
                         : byObject ? "convertWstringToBSTR"
                                    : "SysAllocString2",
                         result));
  }
  return calls;
}

void check(const HostRoutine& routine, const std::vector<Argument>& arguments) {
  std::vector<std::unique_ptr<B>> owners;
  std::vector<BSTR> handles;
  Texts texts;
  for (const Argument argument : arguments) {
    owners.push_back(argument == nullptr ? nullptr : std::make_unique<B>(argument));
    handles.push_back(argument == nullptr ? nullptr : BSTR(*owners.back()));
    texts.push_back(textOf(argument));
  }
  const bool byUnits = routine.path == Path::unit;
  const bool oneForOne = byUnits && texts.size() == 3 && arguments[0] != nullptr &&
                         texts[1].size() == 1 && texts[2].size() == 1;
  const std::size_t aliveBefore = recording().alive.size();
  recording().calls.clear();

  const std::wstring result = routine.call(handles.data());

  ASSERT_EQ(recording().calls, expectedCalls(routine, arguments, result, oneForOne));
  if (byUnits && arguments[0] == nullptr) {
    ASSERT_EQ(result, texts.size() == 1 ? L"(null handle)" : L"(argument)");
  } else if (byUnits && texts.size() > 1 && arguments[1] == nullptr) {
    ASSERT_EQ(result, L"(argument)");
  } else {
    ASSERT_EQ(result, routine.expected(texts));
  }
  ASSERT_EQ(recording().alive.size(), aliveBefore);
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (arguments[i] != nullptr) {
      ASSERT_EQ(owners[i]->text(), oneForOne && i == 0 ? narrowed(result) : arguments[i]);
    }
  }
}

TEST(EveryHostRoutine, NullEmptyAndOneUnit) {
  for (const HostRoutine& routine : hostRoutines()) {
    SCOPED_TRACE(routine.name);
    // All combinations of the arguments; of more than three strings with fewer values, for their
    // number.
    const std::size_t values = routine.strings > 3 ? 3 : std::size(kArguments);
    std::vector<std::size_t> choice(routine.strings, 0);
    for (bool more = true; more;) {
      std::vector<Argument> arguments;
      for (const std::size_t index : choice) arguments.push_back(kArguments[index]);
      check(routine, arguments);
      if (::testing::Test::HasFatalFailure()) return;
      more = std::any_of(choice.begin(), choice.end(), [values](std::size_t& index) {
        index = (index + 1) % values;
        return index != 0;
      });
    }
  }
}

TEST(EveryHostRoutine, IsInTheTable) {
  Calls declared = declaredNames(contentOf(QUVARD_HEADER));
  static const std::regex host("VB_.*|Cpp_.*|ChrCount|Str(From|Between).*");
  std::erase_if(declared, [](const std::string& name) { return !std::regex_match(name, host); });
  Calls tested;
  for (const HostRoutine& routine : hostRoutines()) tested.push_back(routine.name);
  std::sort(declared.begin(), declared.end());
  std::sort(tested.begin(), tested.end());
  EXPECT_EQ(declared, tested);
}

}  // namespace
