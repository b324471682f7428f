#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "support/HostStrings.h"

namespace {

TEST(Inflection, PluralBeginsAtTwo) {
  const B singular(u"case"), plural(u"cases");
  for (const std::int32_t count : {std::numeric_limits<std::int32_t>::min(), -2, -1, 0, 1, 2, 3,
                                   std::numeric_limits<std::int32_t>::max()}) {
    const bool one = count < 2;
    EXPECT_EQ(SingPlural(L"case", L"cases", count), one ? L"case" : L"cases") << count;
    // Only the string that is chosen is read.
    EXPECT_EQ(
        taken(VB_SingPlural(one ? BSTR(singular) : nullptr, one ? nullptr : BSTR(plural), count)),
        one ? L"case" : L"cases");
  }
}

TEST(Inflection, ResultIsACopy) {
  const B singular(u"case");
  const BSTR result = VB_SingPlural(singular, nullptr, 1);
  EXPECT_NE(result, static_cast<BSTR>(singular));
  EXPECT_EQ(taken(result), L"case");
  EXPECT_EQ(taken(VB_SingPlural(singular, nullptr, 2)), L"");
}

}  // namespace
