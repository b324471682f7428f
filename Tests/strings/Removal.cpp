#include <gtest/gtest.h>

#include <vector>

#include "support/HostStrings.h"
#include "support/RandomTexts.h"

namespace {

// The removal as it is told: search from the start, take one unit out, search again.
std::wstring removedStepwise(std::wstring s, const std::wstring& chars) {
  for (std::size_t at; (at = s.find(chars)) != s.npos;) s.erase(at, 1);
  return s;
}

TEST(Removal, Char) {
  struct Row {
    std::wstring s, chars, expected;
  };
  const std::vector<Row> rows{
      {L"a-b-c", L"-", L"abc"},  {L"-ab", L"-", L"ab"},      {L"ab-", L"-", L"ab"},
      {L"---", L"-", L""},       {L"abc", L"x", L"abc"},     {L"", L"x", L""},
      {L" a-b ", L"-", L" ab "}, {L"xaby", L"ab", L"xby"},   {L"aaa", L"aa", L"a"},
      {L"aab", L"ab", L"b"},     {L"ababb", L"abb", L"bbb"}, {L"abc", L"", L"abc"},
      {L"", L"", L""},           {L"ab", L"abc", L"ab"},     {L"ababa", L"aba", L"bba"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(RemoveChar(row.s, row.chars), row.expected);
    EXPECT_EQ(taken(VB_RemoveChar(B(row.s), B(row.chars))), row.expected);
  }
  EXPECT_EQ(taken(VB_RemoveChar(B(u"a-b"), nullptr)), L"a-b");
}

TEST(Removal, CharLikeTheStepsOnRandomTexts) {
  RandomTexts random;
  for (int i = 0; i < 30000; ++i) {
    const std::wstring alphabet = i % 2 == 0 ? L"ab" : L"abc";
    const std::wstring s = random.next(alphabet, 40);
    std::wstring chars = random.next(alphabet, i % 5 == 0 ? 24 : 5);
    if (chars.empty()) chars = L"ba";
    ASSERT_EQ(RemoveChar(s, chars), removedStepwise(s, chars))
        << ::testing::PrintToString(s) << ::testing::PrintToString(chars);
  }
  // Long patterns that occur, overlap and come together.
  for (int i = 0; i < 2000; ++i) {
    const std::wstring word = random.next(L"ab", 3) + L"a";
    std::wstring chars = L"b";
    while (chars.size() < 18) chars += word;
    std::wstring s;
    for (int k = 0; k < 4; ++k)
      s += random.next(L"ab", 3) + chars.substr(random.below(chars.size()));
    s += chars + word + chars;
    ASSERT_EQ(RemoveChar(s, chars), removedStepwise(s, chars)) << ::testing::PrintToString(chars);
  }
}

TEST(Removal, CharIsOnePass) {
  const std::size_t length = 300000;
  const std::wstring a(length, L'a'), b(length, L'b');
  EXPECT_EQ(RemoveChar(a + b, L"ab"), b);
  EXPECT_EQ(RemoveChar(a, L"aa"), L"a");
  EXPECT_EQ(RemoveChar(a, std::wstring(100, L'a') + L'b'), a);
  EXPECT_EQ(RemoveChar(a, std::wstring(100, L'a')), std::wstring(99, L'a'));
}

TEST(Removal, ColonsAndSemicolons) {
  struct Row {
    std::wstring s, colon, semicolon, host;
  };
  const std::vector<Row> rows{
      {L"a:b", L"ab", L"a:b", L"ab"},
      {L":a", L"a", L":a", L"a"},
      {L"a:", L"a", L"a:", L"a"},
      {L"a::b", L"ab", L"a::b", L"ab"},
      {L" a:b ", L"ab", L"a:b", L" ab "},
      {L"a: :b", L"a b", L"a: :b", L"a b"},
      {L" : ", L"", L":", L"  "},
      {L"", L"", L"", L""},
      {L" a;b; ", L"a;b;", L"ab", L" a;b; "},
      {L"a:b;", L"ab;", L"a:b", L"ab;"},
      {L"; ;", L"; ;", L"", L"; ;"},
      {L":::", L"", L":::", L""},
      {L"9<=>", L"9<=>", L"9<=>", L"9<=>"},
      {L" :x: ", L"x", L":x:", L" x "},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(RemoveColon(row.s), row.colon);
    EXPECT_EQ(RemoveSemicolon(row.s), row.semicolon);
    const B s(row.s);
    EXPECT_EQ(taken(VB_RemoveColon(s)), row.host);
    EXPECT_EQ(s.text(), narrowed(row.s));
  }
  EXPECT_EQ(VB_RemoveColon(nullptr), nullptr);
  EXPECT_EQ(RemoveColon(std::wstring(L"\0:\0", 3)), std::wstring(2, L'\0'));
}

TEST(Removal, NonDigits) {
  struct Row {
    std::wstring s, expected;
  };
  const std::vector<Row> rows{
      {L"1,234.50", L"123450"},
      {L"-1.5", L"15"},
      {L"12 34", L"1234"},
      {L"007", L"007"},
      {L"abc", L""},
      {L"", L""},
      {L"/0189:", L"0189"},
      {L"\x0660\xFF11"
       L"2\x00B2",
       L"2"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(RemoveNonNumericChar(row.s), row.expected);
    EXPECT_EQ(taken(VB_RemoveNonNumericChar(B(row.s))), row.expected);
  }
  EXPECT_EQ(taken(VB_RemoveNonNumericChar(nullptr)), L"");
  std::wstring all;
  for (int unit = 0; unit <= 0xFFFF; ++unit) all.push_back(static_cast<wchar_t>(unit));
  EXPECT_EQ(RemoveNonNumericChar(all), L"0123456789");
}

}  // namespace
