#include "support/SmallScopes.h"

namespace {

void expectReplaced(const Text& pattern, const Text& with, const Text& text) {
  const Text expected = stepwise::Replace(text, pattern, with);
  EXPECT_GIVES(Replace, expected, text, pattern, with);
  EXPECT_GIVES(Replace, expected, text, pattern.c_str(), with.c_str());
  const B handle(text);
  const auto replace = [&handle](const Text&, const Text& sought, const Text& inserted) {
    return VB_Replace(handle, B(sought), B(inserted));
  };
  EXPECT_GIVES(replace, expected, text, pattern, with);
  const bool inPlace = pattern.size() == 1 && with.size() == 1;
  EXPECT_EQ(handle.text(), inPlace ? expected : text)
      << "the text after " << showCall("VB_Replace", text, pattern, with);
}

}  // namespace

TEST(Replace, InEveryShortText) {
  forEach(expectReplaced, textsUpTo(5), textsUpTo(3), textsUpTo(9));
}

TEST(VB_Replace2, InEveryShortText) {
  const auto parts = textsUpTo(2);
  EXPECT_SAME(VB_Replace2, stepwise::VB_Replace2, textsUpTo(5), parts, parts, parts, parts);
}

TEST(Replace, WideTextsMayHoldZeroUnits) {
  EXPECT_GIVES(Replace, L"a-b-", L"a\0b\0"s, L"\0"s, L"-"s);
  EXPECT_GIVES(Replace, L"a\0\0\0"s, L"a\0b\0"s, L"b"s, L"\0"s);
  EXPECT_GIVES(Replace, L"a\0cd\0"s, L"a\0b\0"s, L"b", L"cd");
}

TEST(Replace, LongTextsInOnePass) {
  const Text rest(1000000, L'a'), pattern = Text(200000, L'a') + L"b";
  EXPECT_GIVES(Replace, L"x" + rest, pattern + rest, pattern, L"x"s);
  EXPECT_GIVES(VB_Replace, Text(140000, L'b'), Text(70000, L'a'), L"a", L"bb");
  // An intermediate text of 4 million units, and a pattern that matches almost everywhere in it.
  EXPECT_GIVES(VB_Replace2, Text(4000000, L'b'), Text(2000, L'a'), L"a", Text(2000, L'b'),
               Text(99999, L'b') + L"c", L"");
}

TEST(VB_Replace, NullHandles) {
  const B text(u"a-b-c"), dash(u"-");
  EXPECT_EQ(VB_Replace(nullptr, dash, dash), nullptr);
  EXPECT_EQ(VB_Replace(text, nullptr, dash), BSTR(text));
  EXPECT_GIVES(VB_Replace, L"abc", L"a-b-c", L"-", nullptr);
}

TEST(VB_Replace, OneForOneWritesOnlyWhatChanges) {
  // A text in memory that cannot be written stays whole where nothing is to be replaced.
  static const char16_t kFixed[] =
      u"a text that does not hold the unit and is longer than one block of them";
  EXPECT_EQ(take(VB_Replace(const_cast<BSTR>(kFixed), B(u"#"), B(u"x"))), widen(kFixed));
  // What stands behind the end of a text stays too.
  std::u16string units(300, u'-');
  units[200] = 0;
  EXPECT_EQ(take(VB_Replace(units.data(), B(u"-"), B(u"+"))), Text(200, L'+'));
  EXPECT_EQ(units.substr(201), std::u16string(99, u'-'));
}
