#include "fuzz/Checks.h"

testing::AssertionResult checkWideRoutine(Random& random) {
  std::size_t choice = random.below(23);
  std::vector<Text> texts;
  while (texts.size() < 6) texts.push_back(drawText(random, texts));
  const Text &a = texts[0], &b = texts[1], &c = texts[2];
  const int32_t n = drawInteger(random);
  const HostBool flag1 = drawFlag(random), flag2 = drawFlag(random), flag3 = drawFlag(random);
  CHECK(StrLeft, a, n);
  CHECK(StrRight, a, n);
  CHECK(StrConcat, a, b, c, texts[3], texts[4], texts[5]);
  CHECK(StrLTrim, a);
  CHECK(StrRTrim, a);
  CHECK(StrLRTrim, a);
  CHECK(StrLCase, a);
  CHECK(RemoveColon, a);
  CHECK(RemoveSemicolon, a);
  CHECK(RemoveNonNumericChar, a);
  CHECK(CommonChar, a, b);
  CHECK(cChrCount, a, b);
  CHECK(cStrBetweenChrAndChr, a, b, c);
  CHECK(LocalAN, a, b, c, flag1, flag2, flag3);
  CHECK(LowerFirst, a, b, flag1);
  CHECK(UpperFirst, a);
  CHECK(SpStrSp, a);
  CHECK(PStrP, a);
  CHECK(SingPlural, a, b, n);
  CHECK(QUVARDHTMLProcessor, a);
  CHECK(Replace, a, b, c);
  CHECK(RemoveChar, a, b);
  // Pointers into one text, which end at its first zero unit.
  const wchar_t* const start = a.c_str() + random.below(Text(a.c_str()).size() + 1);
  const wchar_t* const other = random.below(2) == 0 ? start : b.c_str();
  CHECK(Replace, a, start, other);
  return testing::AssertionFailure() << "no wide routine has the number that was drawn";
}
