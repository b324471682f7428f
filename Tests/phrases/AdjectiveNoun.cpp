#include "support/SmallScopes.h"

TEST(AdjectiveNoun, EveryLanguageAndFlagCombination) {
  // The phrases are in the order of the flags in binary, upperAdjective first, noBlank last.
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
        EXPECT_GIVES(LocalAN, phrases.begin()[flags], L"ad", L"No", language, upper, lower,
                     noBlank);
      }
    }
  }
}

TEST(AdjectiveNoun, MissingAndUpperCaseWords) {
  const std::vector<Text> words{L"", L"ad", L"No", L"XX", L"\0a"s},
      languages{L"ES", L"US", L"DE", L"JP", L"EN"};
  const std::vector<HostBool> flags{0, -1};
  EXPECT_SAME(LocalAN, stepwise::LocalAN, words, words, languages, flags, flags, flags);
}
