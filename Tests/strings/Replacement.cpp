#include "support/HostRoutines.h"

TEST(Replacement, LikeTheStepsOnRandomTexts) {
  for (int i = 0; i < 20000; ++i) {
    Text text = randomText(L"ab", i % 10 == 0 ? 300 : 40);
    const Text pattern = randomText(L"ab", i % 4 == 0 ? 20 : 3);
    const Text with = randomText(L"abc", i % 8 == 0 ? 40 : 4), behind = randomText(L"ab", 2);
    if (i % 3 == 0) text += pattern + Text(randomBelow(50), L'c') + pattern;
    SCOPED_TRACE(::testing::PrintToString(row(text, pattern, with)));
    const Text expected = replacedStepwise(text, pattern, with);
    ASSERT_EQ(Replace(text, pattern, with), expected);
    ASSERT_EQ(Replace(text, pattern.c_str(), with.c_str()), expected);
    const B hostText(text), hostPattern(pattern), hostWith(with);
    ASSERT_EQ(taken(VB_Replace2(hostText, hostPattern, hostWith, B(behind), hostPattern)),
              replacedStepwise(expected, behind, pattern));
    ASSERT_EQ(hostText.text(), text);
    ASSERT_EQ(taken(VB_Replace(hostText, hostPattern, hostWith)), expected);
    const bool inPlace = pattern.size() == 1 && with.size() == 1;
    ASSERT_EQ(hostText.text(), inPlace ? expected : text);
  }
}

TEST(Replacement, WideTextsMayHoldZeroUnits) {
  EXPECT_EQ(Replace(L"a\0b\0"s, L"\0"s, L"-"s), L"a-b-");
  EXPECT_EQ(Replace(L"a\0b\0"s, L"b"s, L"\0"s), L"a\0\0\0"s);
  EXPECT_EQ(Replace(L"a\0b\0"s, L"b", L"cd"), L"a\0cd\0"s);
}

TEST(Replacement, LongTextsInOnePass) {
  const Text rest(1000000, L'a'), pattern = Text(200000, L'a') + L"b";
  EXPECT_EQ(Replace(pattern + rest, pattern, L"x"s), L"x" + rest);
  EXPECT_EQ(taken(VB_Replace(B(Text(70000, L'a')), B(u"a"), B(u"bb"))), Text(140000, L'b'));
}

TEST(Replacement, NullHandles) {
  const B text(u"a-b-c"), dash(u"-");
  EXPECT_EQ(VB_Replace(nullptr, dash, dash), nullptr);
  EXPECT_EQ(VB_Replace(text, nullptr, dash), BSTR(text));
  EXPECT_EQ(taken(VB_Replace(text, dash, nullptr)), L"abc");
}

TEST(Replacement, OneForOneWritesOnlyWhatChanges) {
  // A text in memory that cannot be written stays whole where nothing is to be replaced.
  static const char16_t kFixed[] =
      u"a text that does not hold the unit and is longer than one block of them";
  EXPECT_EQ(taken(VB_Replace(const_cast<BSTR>(kFixed), B(u"#"), B(u"x"))), widened(kFixed));
  // What stands behind the end of a text stays too.
  std::u16string units(300, u'-');
  units[200] = 0;
  EXPECT_EQ(taken(VB_Replace(units.data(), B(u"-"), B(u"+"))), Text(200, L'+'));
  EXPECT_EQ(units.substr(201), std::u16string(99, u'-'));
}
