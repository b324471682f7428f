#include <gtest/gtest.h>

#include <vector>

#include "support/HostRoutines.h"
#include "support/RandomTexts.h"

namespace {

struct Row {
  std::wstring text, pattern, replacement, expected;
};

// All routines for one pattern, on a text without zero units.
void checkAll(const Row& row) {
  const auto& [text, pattern, replacement, expected] = row;
  ASSERT_EQ(Replace(text, pattern, replacement), expected);
  ASSERT_EQ(Replace(text, pattern.c_str(), replacement.c_str()), expected);
  const B hostText(text), hostPattern(pattern), hostReplacement(replacement);
  ASSERT_EQ(taken(VB_Replace2(hostText, hostPattern, hostReplacement, nullptr, nullptr)), expected);
  ASSERT_EQ(taken(VB_Replace2(hostText, nullptr, nullptr, hostPattern, hostReplacement)), expected);
  ASSERT_EQ(hostText.text(), narrowed(text));
  ASSERT_EQ(taken(VB_Replace(hostText, hostPattern, hostReplacement)), expected);
  const bool oneForOne = pattern.size() == 1 && replacement.size() == 1;
  ASSERT_EQ(hostText.text(), narrowed(oneForOne ? expected : text));
}

TEST(Replacement, Rows) {
  const std::wstring twenty = L"aaaaaaaaaaaaaaaaaaab";
  const std::vector<Row> rows{
      {L"a,b,c", L",", L";", L"a;b;c"},
      {L"abc", L"", L"x", L"abc"},
      {L"abc", L"", L"", L"abc"},
      {L"", L",", L";", L""},
      {L"", L"", L"x", L""},
      {L"abc", L"x", L"y", L"abc"},
      {L"abc", L"abc", L"abc", L"abc"},
      {L"aaa", L"aa", L"b", L"ba"},
      {L"abab", L"ab", L"x", L"xx"},
      {L"a    b", L"  ", L" ", L"a  b"},
      {L"a,,b", L",", L"", L"ab"},
      {L"a,,b,c", L",", L"", L"abc"},
      {L",,,", L",", L"", L""},
      {L"ab-ab-ab", L"ab", L"", L"--"},
      {L"a", L"a", L"aa", L"aa"},
      {L"a,b", L",", L",,", L"a,,b"},
      {L"a,b,c", L",", L", ", L"a, b, c"},
      {L"aa", L"a", L"ba", L"baba"},
      {L"aab", L"ab", L"b", L"ab"},
      {L"aab,ab", L"ab", L"b", L"ab,b"},
      {L"a,b,c,d,e,f", L",", L"; ", L"a; b; c; d; e; f"},
      {L"x" + twenty + L"aa" + twenty, twenty, L"-", L"x-aa-"},
      {L"x" + twenty, twenty, twenty + twenty, L"x" + twenty + twenty},
      {L"a" + twenty.substr(0, 19), twenty, L"-", L"a" + twenty.substr(0, 19)},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(::testing::PrintToString(row.text));
    checkAll(row);
  }
}

TEST(Replacement, LikeTheStepsOnRandomTexts) {
  RandomTexts random;
  for (int i = 0; i < 20000; ++i) {
    const std::wstring text = random.next(L"ab", i % 10 == 0 ? 300 : 40);
    const std::wstring pattern = random.next(L"ab", i % 4 == 0 ? 20 : 3);
    const std::wstring replacement = random.next(L"abc", 4);
    checkAll({text, pattern, replacement, replacedStepwise(text, pattern, replacement)});
    if (HasFatalFailure()) return;
  }
}

TEST(Replacement, WideTextsMayHoldZeroUnits) {
  const std::wstring text(L"a\0b\0", 4), zero(1, L'\0');
  EXPECT_EQ(Replace(text, zero, std::wstring(L"-")), L"a-b-");
  EXPECT_EQ(Replace(text, std::wstring(L"b"), zero), std::wstring(L"a\0\0\0", 4));
  EXPECT_EQ(Replace(text, L"b", L"cd"), std::wstring(L"a\0cd\0", 5));
  EXPECT_EQ(Replace(text, L"", L"x"), text);
}

TEST(Replacement, TwoPairs) {
  struct Pairs {
    const char16_t *text, *pattern1, *replacement1, *pattern2, *replacement2;
    std::wstring expected;
  };
  const std::vector<Pairs> rows{
      {u"x=1;y=2", u"=", u": ", u";", u", ", L"x: 1, y: 2"},
      {u"ab", u"a", u"b", u"b", u"c", L"cc"},
      {u"ab", u"b", u"c", u"a", u"b", L"bc"},
      {u"ab", u"a", u"a", u"b", u"c", L"ac"},
  };
  for (const Pairs& row : rows) {
    const B text(row.text);
    EXPECT_EQ(taken(VB_Replace2(text, B(row.pattern1), B(row.replacement1), B(row.pattern2),
                                B(row.replacement2))),
              row.expected);
    EXPECT_EQ(text.text(), row.text);
  }
  EXPECT_EQ(taken(VB_Replace2(B(u"ab"), B(u"a"), nullptr, nullptr, nullptr)), L"b");
  EXPECT_EQ(taken(VB_Replace2(nullptr, B(u"a"), B(u"b"), B(u"c"), B(u"d"))), L"");
}

TEST(Replacement, NullHandles) {
  const B text(u"a-b-c"), dash(u"-"), empty(u"");
  EXPECT_EQ(VB_Replace(nullptr, dash, dash), nullptr);
  EXPECT_EQ(VB_Replace(nullptr, nullptr, nullptr), nullptr);
  EXPECT_EQ(VB_Replace(text, nullptr, dash), static_cast<BSTR>(text));
  EXPECT_EQ(taken(VB_Replace(text, dash, nullptr)), L"abc");
  EXPECT_EQ(taken(VB_Replace(text, empty, nullptr)), L"a-b-c");
  EXPECT_EQ(text.text(), u"a-b-c");
}

TEST(Replacement, OneForOneWritesOnlyWhatChanges) {
  // A text in memory that cannot be written stays whole where nothing is to be replaced.
  static const char16_t kFixed[] =
      u"a text that does not hold the unit and is longer than one block of them";
  BSTR fixed = const_cast<BSTR>(kFixed);
  EXPECT_EQ(taken(VB_Replace(fixed, B(u"#"), B(u"x"))), widened(kFixed));
  EXPECT_EQ(taken(VB_Replace(B(std::u16string(200, u'-')), B(u"-"), B(u"+"))),
            std::wstring(200, L'+'));
}

}  // namespace
