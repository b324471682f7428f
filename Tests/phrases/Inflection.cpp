#include "support/Doubles.h"
#include "support/HostStrings.h"

TEST(Inflection, PluralBeginsAtTwo) {
  const B one(u"case"), more(u"cases");
  for (const std::int32_t count : {kLowest, -2, -1, 0, 1, 2, 3, kHighest}) {
    const Text expected = count < 2 ? L"case" : L"cases";
    EXPECT_EQ(SingPlural(L"case", L"cases", count), expected) << count;
    EXPECT_EQ(taken(VB_SingPlural(one, more, count)), expected) << count;
  }
}
