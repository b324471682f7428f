#include "support/SmallScopes.h"

TEST(Inflection, PluralBeginsAtTwo) {
  for (const int32_t count : integersNear(33)) {
    const Text expected = count < 2 ? L"case" : L"cases";
    EXPECT_GIVES(SingPlural, expected, L"case", L"cases", count);
    EXPECT_GIVES(VB_SingPlural, expected, L"case", L"cases", count);
  }
}
