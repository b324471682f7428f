#include "strings/PatternSearch.h"

#include "support/SmallScopes.h"

TEST(PatternSearch, TwoWayAgreesWithStdFind) {
  for (const Text& pattern : textsUpTo(7)) {
    if (pattern.size() < 2) continue;
    const quvard::TwoWaySearch<wchar_t> search(pattern);
    for (const Text& text : textsUpTo(11)) {
      const std::size_t from = text.size() / 3;
      ASSERT_EQ(search.find<wchar_t>(text, from), text.find(pattern, from))
          << showCall("TwoWaySearch::find", pattern, text, from);
    }
  }
}
