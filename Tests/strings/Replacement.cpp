#include "support/SmallScopes.h"

namespace {

void check(const Text& pattern, const Text& replacement, const Text& text) {
  const Text expected = reference::Replace(text, pattern, replacement);
  EXPECT_GIVES(Replace, expected, text, pattern, replacement);
  EXPECT_GIVES(Replace, expected, text, pattern.c_str(), replacement.c_str());
  const B handle(text);
  EXPECT_GIVES(VB_Replace, expected, handle, pattern, replacement);
  const bool inPlace = pattern.size() == 1 && replacement.size() == 1;
  EXPECT_EQ(handle.text(), inPlace ? expected : text)
      << "is the text after " << showCall("VB_Replace", text, pattern, replacement);
}

}  // namespace

TEST(Replace, InEveryShortText) { forEach(check, textsUpTo(5), textsUpTo(3), textsUpTo(9)); }

TEST(VB_Replace2, InEveryShortText) {
  const auto parts = textsUpTo(2);
  EXPECT_SAME(VB_Replace2, reference::VB_Replace2, textsUpTo(5), parts, parts, parts, parts);
}

TEST(Replace, OfZeroCodeUnits) {
  EXPECT_GIVES(Replace, L"a-b-", L"a\0b\0"s, L"\0"s, L"-"s);
  EXPECT_GIVES(Replace, L"a\0\0\0"s, L"a\0b\0"s, L"b"s, L"\0"s);
  EXPECT_GIVES(Replace, L"a\0cd\0"s, L"a\0b\0"s, L"b", L"cd");
}

TEST(Replace, IsLinear) {
  const Text rest(1000000, L'a'), pattern = Text(200000, L'a') + L"b";
  EXPECT_GIVES(Replace, L"x" + rest, pattern + rest, pattern, L"x"s);
  EXPECT_GIVES(VB_Replace, Text(140000, L'b'), Text(70000, L'a'), L"a", L"bb");
  // An intermediate text of 4 million code units, with a partial match nearly everywhere.
  EXPECT_GIVES(VB_Replace2, Text(4000000, L'b'), Text(2000, L'a'), L"a", Text(2000, L'b'),
               Text(99999, L'b') + L"c", L"");
}

TEST(VB_Replace, OneForOneWritesOnlyReplacedUnits) {
  // A text in read-only memory, without an occurrence.
  static const char16_t kFixed[] =
      u"a text that does not contain the pattern and is longer than one block";
  EXPECT_EQ(take(VB_Replace(const_cast<BSTR>(kFixed), B(u"#"), B(u"x"))), widen(kFixed));
  // Code units after the end of a text.
  std::u16string units(300, u'-');
  units[200] = 0;
  EXPECT_EQ(take(VB_Replace(units.data(), B(u"-"), B(u"+"))), Text(200, L'+'));
  EXPECT_EQ(units.substr(201), std::u16string(99, u'-'));
}
