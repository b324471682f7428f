// What is fuzzed: calls with random arguments, compared with the references.
#ifndef TESTS_FUZZ_CHECKS_H
#define TESTS_FUZZ_CHECKS_H

#include <vector>

#include "support/Expectations.h"
#include "support/Random.h"
#include "support/Stepwise.h"

// Draws the arguments of a routine, calls it and tells what differs.
struct Check {
  std::string routine;
  std::function<testing::AssertionResult(Random&)> run;
};
using Checks = std::vector<Check>;

// The checks of each fuzz target.
const Checks& checksOfHostRoutines();
const Checks& checksOfWideRoutines();
const Checks& checksOfFormats();
const Checks& checksOfNumerics();
const Checks& checksOfSequences();

// One of them.
inline testing::AssertionResult checkAny(const Checks& checks, Random& random) {
  return checks[random.below(checks.size())].run(random);
}

// Both forms of SetFormat, on an array of 8.
testing::AssertionResult checkFormatsOf(int32_t count, int32_t digits, int32_t digitsOverride);

// An element of a list of checks, which compares a routine with its reference. The file has a
// function drawArguments(random) and the names of what it returns, ARGUMENTS.
#define CHECK(routine, ...) CHECK_GIVES(routine, stepwise::routine(__VA_ARGS__), __VA_ARGS__)
#define CHECK_GIVES(routine, expected, ...)                     \
  {                                                             \
#routine, [](Random& random) {                                \
      const auto& [ARGUMENTS] = drawArguments(random);            \
      return GIVES(routine, expected, __VA_ARGS__);               \
    } \
  }

// A part of a text: units, words that mean something, or units of another text.
inline Text drawPart(Random& random, const std::vector<Text>& others) {
  static const Texts alphabets{L"ab",
                               L" :;a",
                               L"<BRQMC>",
                               L"0129,",
                               L"()/",
                               L"AZaz@[`{",
                               L"a\x10061\x80000061\xFFFF\x10000\xD83D\xDE00\x7FFFFFFF\0"s};
  static const Texts words{L"ES", L"FR", L"IT", L"PT",   L"PL",   L"US",  L"DE",
                           L"JP", L"CS", L"CN", L"<BR>", L"<QM>", L"<CM>"};
  const std::size_t choice = random.below(alphabets.size() + 5);
  if (choice < alphabets.size()) {
    const std::size_t longest[] = {3, 20, 70};
    return random.text(alphabets[choice], longest[random.below(3)]);
  }
  if (choice == alphabets.size() || others.empty()) return words[random.below(words.size())];
  const Text& other = others[random.below(others.size())];
  const std::size_t at = random.below(other.size() + 1);
  return other.substr(at, random.below(other.size() - at + 1));
}

// A text in which others may well occur, and which may occur in them: of one part, or of several,
// some of which come more than once. Not so long that two replacements would take long.
inline Text drawText(Random& random, const std::vector<Text>& others) {
  Text text = drawPart(random, others);
  for (std::size_t joins = random.below(2) * random.below(6); joins > 0; --joins) {
    text += random.below(2) == 0 ? text : drawPart(random, others);
  }
  return text.substr(0, 200);
}

// Small ones above all.
inline int32_t drawInteger(Random& random) {
  return random.below(2) == 0 ? static_cast<int32_t>(random.below(80)) - 8 : random.integer();
}

// Few enough for a pattern in memory.
inline int32_t drawDecimals(Random& random) { return std::min(drawInteger(random), 400); }

inline HostBool drawFlag(Random& random) {
  constexpr HostBool kFlags[] = {0, -1, 1, 0x10000, 0xFFFF, 0x18000};
  const std::size_t choice = random.below(std::size(kFlags) + 1);
  return choice < std::size(kFlags) ? kFlags[choice] : random.integer();
}

// At an edge, a quarter, a power of ten, or anywhere; and then perhaps off by little.
inline double drawDouble(Random& random) {
  double x = random.edge();
  const std::size_t choice = random.below(5);
  if (choice == 1) x = random.between(-9.0, 9.0);
  if (choice == 2) x = drawInteger(random) * 0.25;
  if (choice == 3) x = drawInteger(random) / std::pow(10.0, static_cast<double>(random.below(10)));
  if (choice == 4) x = std::pow(10.0, static_cast<double>(random.below(50)) - 30.0);
  const std::size_t off = random.below(6);
  if (off == 0) return x + random.between(-2e-12, 2e-12);
  if (off == 1) return x * (1.0 + random.between(-1e-4, 1e-4));
  if (off > 2) return x;
  return std::bit_cast<double>(std::bit_cast<uint64_t>(x) + random.below(9) - 4);
}

#endif
