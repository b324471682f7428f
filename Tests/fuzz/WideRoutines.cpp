#include "fuzz/Checks.h"

namespace {

struct Arguments {
  Text a, b, c, d, e, f;
  int32_t n;
  HostBool flag1, flag2, flag3;
};
#define ARGUMENTS a, b, c, d, e, f, n, flag1, flag2, flag3

Arguments drawArguments(Random& random) {
  Texts t;
  while (t.size() < 6) t.push_back(drawText(random, t));
  return {t[0],
          t[1],
          t[2],
          t[3],
          t[4],
          t[5],
          drawInteger(random),
          drawFlag(random),
          drawFlag(random),
          drawFlag(random)};
}

// Of pointers into one text, which end at its first zero unit.
testing::AssertionResult checkReplaceOfPointers(Random& random) {
  const Text text = drawText(random, {}), other = drawText(random, {text});
  const wchar_t* const pattern = text.c_str() + random.below(Text(text.c_str()).size() + 1);
  const wchar_t* const replacement = random.below(2) == 0 ? pattern : other.c_str();
  return GIVES(Replace, stepwise::Replace(text, pattern, replacement), text, pattern, replacement);
}

}  // namespace

const Checks& checksOfWideRoutines() {
  static const Checks checks{CHECK(StrLeft, a, n),
                             CHECK(StrRight, a, n),
                             CHECK(StrConcat, a, b, c, d, e, f),
                             CHECK(StrLTrim, a),
                             CHECK(StrRTrim, a),
                             CHECK(StrLRTrim, a),
                             CHECK(StrLCase, a),
                             CHECK(RemoveColon, a),
                             CHECK(RemoveSemicolon, a),
                             CHECK(RemoveNonNumericChar, a),
                             CHECK(CommonChar, a, b),
                             CHECK(cChrCount, a, b),
                             CHECK(cStrBetweenChrAndChr, a, b, c),
                             CHECK(LocalAN, a, b, c, flag1, flag2, flag3),
                             CHECK(LowerFirst, a, b, flag1),
                             CHECK(UpperFirst, a),
                             CHECK(SpStrSp, a),
                             CHECK(PStrP, a),
                             CHECK(SingPlural, a, b, n),
                             CHECK(QUVARDHTMLProcessor, a),
                             CHECK(Replace, a, b, c),
                             {"Replace", checkReplaceOfPointers},
                             CHECK(RemoveChar, a, b)};
  return checks;
}
