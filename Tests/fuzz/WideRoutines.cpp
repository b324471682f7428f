#include "fuzz/Checks.h"

testing::AssertionResult checkWideRoutine(Random& random) {
  std::size_t choice = random.below(23);
  std::vector<Text> texts;
  while (texts.size() < 6) texts.push_back(drawText(random, texts));
  const Text &a = texts[0], &b = texts[1], &c = texts[2];
  const int32_t n = drawInteger(random);
  const HostBool flag1 = drawFlag(random), flag2 = drawFlag(random), flag3 = drawFlag(random);
  CHECK(stepwise, StrLeft, a, n);
  CHECK(stepwise, StrRight, a, n);
  CHECK(stepwise, StrConcat, a, b, c, texts[3], texts[4], texts[5]);
  CHECK(stepwise, StrLTrim, a);
  CHECK(stepwise, StrRTrim, a);
  CHECK(stepwise, StrLRTrim, a);
  CHECK(stepwise, StrLCase, a);
  CHECK(stepwise, RemoveColon, a);
  CHECK(stepwise, RemoveSemicolon, a);
  CHECK(stepwise, RemoveNonNumericChar, a);
  CHECK(stepwise, CommonChar, a, b);
  CHECK(stepwise, cChrCount, a, b);
  CHECK(stepwise, cStrBetweenChrAndChr, a, b, c);
  CHECK(stepwise, LocalAN, a, b, c, flag1, flag2, flag3);
  CHECK(stepwise, LowerFirst, a, b, flag1);
  CHECK(stepwise, UpperFirst, a);
  CHECK(stepwise, SpStrSp, a);
  CHECK(stepwise, PStrP, a);
  CHECK(stepwise, SingPlural, a, b, n);
  CHECK(stepwise, QUVARDHTMLProcessor, a);
  CHECK(stepwise, Replace, a, b, c);
  CHECK(stepwise, RemoveChar, a, b);
  // Pointers into one text, which end at its first zero unit.
  const wchar_t* const start = a.c_str() + random.below(Text(a.c_str()).size() + 1);
  const wchar_t* const other = random.below(2) == 0 ? start : b.c_str();
  CHECK(stepwise, Replace, a, start, other);
  return testing::AssertionFailure() << "no wide routine has the number that was drawn";
}
