#include "support/SmallScopes.h"

TEST(Substrings, OfEveryLength) {
  for (const Text s : {L"", L"a", L"ab", L"Hello"}) {
    for (const int32_t n : integersNear(9)) {
      const std::size_t size = n < 0 ? s.size() : std::min(s.size(), static_cast<std::size_t>(n));
      EXPECT_GIVES(StrLeft, s.substr(0, size), s, n);
      EXPECT_GIVES(StrRight, s.substr(s.size() - size), s, n);
      EXPECT_GIVES(VB_StrLeft, s.substr(0, size), s, n);
      EXPECT_GIVES(VB_StrRight, s.substr(s.size() - size), s, n);
    }
  }
}
