#include "support/HostStrings.h"

TEST(AdjectiveNoun, EveryLanguageAndFlagCombination) {
  // The phrases stand in the order of the flags in binary, upperAdjective first, noBlank last.
  using Row = std::tuple<std::vector<Text>, std::vector<Text>>;
  for (const auto& [languages, phrases] :
       {Row({L"ES", L"FR", L"IT", L"PT", L"PL"},
            {L"No ad", L"Noad", L"no ad", L"noad", L"No ad", L"Noad", L"no ad", L"noad"}),
        Row({L"US"},
            {L"ad no", L"ad no", L"ad no", L"ad no", L"Ad no", L"Ad no", L"ad no", L"ad no"}),
        Row({L"DE"},
            {L"ad No", L"ad No", L"ad No", L"ad No", L"Ad No", L"Ad No", L"Ad No", L"Ad No"}),
        Row({L"JP", L"CS", L"CN"},
            {L"ad No", L"adNo", L"ad No", L"adNo", L"ad No", L"adNo", L"ad No", L"adNo"}),
        Row({L"us", L"Us", L"uS", L"U", L"USA", L" US", L"EN", L"", L"US\0"s, L"\0\0"s},
            std::vector<Text>(8))}) {
    for (const Text& language : languages) {
      for (int flags = 0; flags < 8; ++flags) {
        const HostBool upper = flags >> 2 & 1, lower = flags >> 1 & 1, noBlank = flags & 1;
        EXPECT_EQ(LocalAN(L"ad", L"No", language, upper, lower, noBlank), phrases.begin()[flags]);
      }
    }
  }
}

TEST(AdjectiveNoun, MissingAndUpperCaseWords) {
  EXPECT_EQ(LocalAN(L"", L"No", L"US", -1, 0, 0), L" no");
  EXPECT_EQ(LocalAN(L"", L"No", L"ES", 0, 0, 0), L"No ");
  EXPECT_EQ(LocalAN(L"Ad", L"", L"ES", 0, -1, -1), L"ad");
  EXPECT_EQ(LocalAN(L"Ad", L"", L"ES", 0, -1, 0), L" Ad");
  EXPECT_EQ(LocalAN(L"AD", L"NO", L"US", 0, 0, 0), L"AD nO");
}

TEST(AdjectiveNoun, FlagsReadTheirLow16Bits) {
  for (std::int32_t low = 0; low <= 0xFFFF; ++low) {
    for (const HostBool flag : {low, low | 0x10000, low - 0x10000}) {
      const bool set = low != 0;
      ASSERT_EQ(LocalAN(L"a", L"B", L"DE", flag, 0, 0), set ? L"A B" : L"a B") << flag;
      ASSERT_EQ(LocalAN(L"a", L"B", L"FR", 0, flag, 0), set ? L"b a" : L"B a") << flag;
      ASSERT_EQ(LocalAN(L"a", L"B", L"CN", 0, 0, flag), set ? L"aB" : L"a B") << flag;
      ASSERT_EQ(LowerFirst(L"A", L"DE", flag), set ? L"a" : L"A") << flag;
      ASSERT_EQ(OptimalFormat(1e9, 1, flag, flag), set ? L"0E+0" : L"0") << flag;
    }
  }
}
