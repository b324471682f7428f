#include "support/HostStrings.h"

TEST(Removal, CharLikeTheSteps) {
  for (int i = 0; i < 32000; ++i) {
    const Text alphabet = i % 2 == 0 ? L"ab" : L"abc";
    Text s = randomText(alphabet, 40), chars = randomText(alphabet, i % 5 == 0 ? 24 : 5);
    if (i % 16 == 0) {  // a long pattern that occurs, overlaps and comes together
      const Text word = randomText(L"ab", 3) + L"a";
      for (chars = L"b"; chars.size() < 18;) chars += word;
      for (int k = 0; k < 4; ++k) s += randomText(L"ab", 3) + chars.substr(randomBelow(18));
      s += chars + word + chars;
    }
    // The removal as it is told: search from the start, take one unit out, search again.
    Text left = s;
    for (std::size_t at; !chars.empty() && (at = left.find(chars)) != left.npos;) left.erase(at, 1);
    ASSERT_EQ(RemoveChar(s, chars), left) << ::testing::PrintToString(row(s, chars));
  }
}

TEST(Removal, CharIsOnePass) {
  const Text a(300000, L'a'), b(300000, L'b');
  EXPECT_EQ(RemoveChar(a + b, L"ab"), b);
  EXPECT_EQ(RemoveChar(a, L"aa"), L"a");
  EXPECT_EQ(RemoveChar(a, Text(100, L'a') + L'b'), a);
  EXPECT_EQ(RemoveChar(a, Text(100, L'a')), Text(99, L'a'));
}

TEST(Removal, ColonsAndSemicolons) {
  for (const auto& [s, colon, semicolon, host] :
       {row(L" :a::b: ", L"ab", L":a::b:", L" ab "), row(L" a;b; ", L"a;b;", L"ab", L" a;b; "),
        row(L" : ", L"", L":", L"  "), row(L"a: :b;", L"a b;", L"a: :b", L"a b;"),
        row(L"", L"", L"", L""), row(L"9<=>", L"9<=>", L"9<=>", L"9<=>")}) {
    EXPECT_EQ(RemoveColon(s), colon);
    EXPECT_EQ(RemoveSemicolon(s), semicolon);
    EXPECT_EQ(taken(VB_RemoveColon(B(s))), host);
  }
  EXPECT_EQ(VB_RemoveColon(nullptr), nullptr);
  EXPECT_EQ(RemoveColon(L"\0:\0"s), L"\0\0"s);
}

TEST(Removal, NonDigits) { EXPECT_EQ(RemoveNonNumericChar(L"3\0"s + allUnits()), L"30123456789"); }
