#include "strings/PatternSearch.h"

#include "support/HostStrings.h"

namespace {

// Every text over two units up to a length.
std::vector<Text> textsUpTo(std::size_t longest) {
  std::vector<Text> texts{L""};
  for (std::size_t i = 0; texts[i].size() < longest; ++i) {
    texts.push_back(texts[i] + L'a');
    texts.push_back(texts[i] + L'b');
  }
  return texts;
}

}  // namespace

TEST(PatternSearch, TwoWayFindsWhatTheLibraryFinds) {
  const std::vector<Text> texts = textsUpTo(11);
  for (const Text& pattern : textsUpTo(7)) {
    if (pattern.size() < 2) continue;
    const quvard::TwoWaySearch<wchar_t> search(pattern);
    for (const Text& text : texts) {
      const std::size_t from = text.size() / 3;
      ASSERT_EQ(search.find<wchar_t>(text, from), text.find(pattern, from))
          << ::testing::PrintToString(row(pattern, text));
    }
  }
}
