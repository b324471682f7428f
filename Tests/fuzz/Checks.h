// Checks of calls with random arguments against the references, for fuzz targets and tests.
#ifndef TESTS_FUZZ_CHECKS_H
#define TESTS_FUZZ_CHECKS_H

#include <vector>

#include "support/HostRoutines.h"
#include "support/Random.h"

// Calls a routine with random arguments and compares the result with the reference.
struct Check {
  std::string routine;
  std::function<testing::AssertionResult(Random&)> run;
};
using Checks = std::vector<Check>;

// The checks of each fuzz target.
const Checks& checksOfTexts();
const Checks& checksOfNumerics();
const Checks& checksOfSequences();

// Calls host routines on several threads at once.
testing::AssertionResult checkSequence(Random& random, std::size_t threads);

// Runs one of the checks.
inline testing::AssertionResult checkAny(const Checks& checks, Random& random) {
  return checks[random.below(checks.size())].run(random);
}

// A part of a text: random code units, a word with a meaning, or a part of another text.
inline Text drawPart(Random& random, const Texts& others) {
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
    const std::size_t maxSizes[] = {3, 20, 70};
    return random.text(alphabets[choice], maxSizes[random.below(3)]);
  }
  if (choice == alphabets.size() || others.empty()) return words[random.below(words.size())];
  const Text& other = others[random.below(others.size())];
  const std::size_t start = random.below(other.size() + 1);
  return other.substr(start, random.below(other.size() - start + 1));
}

// A text of one part or several, some of them repeated. It may contain the other texts or be part of
// them. At most 200 code units, because the time of two replacements grows with the square.
inline Text drawText(Random& random, const Texts& others) {
  Text text = drawPart(random, others);
  for (std::size_t joins = random.below(2) * random.below(6); joins > 0; --joins) {
    text += random.below(2) == 0 ? text : drawPart(random, others);
  }
  return text.substr(0, 200);
}

// Half of the integers are small.
inline int32_t drawInteger(Random& random) {
  return random.below(2) == 0 ? static_cast<int32_t>(random.below(80)) - 8 : random.integer();
}

inline HostBool drawFlag(Random& random) {
  constexpr HostBool kFlags[] = {0, -1, 1, 0x10000, 0xFFFF, 0x18000};
  const std::size_t choice = random.below(std::size(kFlags) + 1);
  return choice < std::size(kFlags) ? kFlags[choice] : random.integer();
}

// Patterns have at most 400 decimals, so that they fit into memory.
inline Numbers drawNumbers(Random& random) {
  return {drawInteger(random), drawInteger(random), std::min(drawInteger(random), 400),
          drawFlag(random),    drawFlag(random),    drawFlag(random),
          random.edge()};
}

#endif
