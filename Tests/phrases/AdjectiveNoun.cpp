#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/HostStrings.h"

namespace {

struct Flags {
  HostBool upperAdjective, lowerResult, noBlank;
};

// The three flags in binary, upperAdjective first.
Flags flagsOf(int bits) { return {bits >> 2 & 1, bits >> 1 & 1, bits & 1}; }

std::wstring bothForms(const std::wstring& adjective, const std::wstring& noun,
                       const std::wstring& language, Flags flags) {
  const std::wstring wide =
      LocalAN(adjective, noun, language, flags.upperAdjective, flags.lowerResult, flags.noBlank);
  EXPECT_EQ(taken(VB_LocalAN2(B(adjective), B(noun), B(language), flags.upperAdjective,
                              flags.lowerResult, flags.noBlank)),
            wide);
  if (flags.upperAdjective != 0 && flags.lowerResult == 0 && flags.noBlank == 0) {
    EXPECT_EQ(taken(VB_LocalAN(B(adjective), B(noun), B(language))), wide);
  }
  return wide;
}

TEST(AdjectiveNoun, EveryLanguageAndFlagCombination) {
  struct Row {
    std::vector<std::wstring> languages;
    std::wstring phrases[8];  // by the flags in binary, 000 to 111
  };
  const std::vector<Row> rows{
      {{L"ES", L"FR", L"IT", L"PT", L"PL"},
       {L"Model linear", L"Modellinear", L"model linear", L"modellinear", L"Model linear",
        L"Modellinear", L"model linear", L"modellinear"}},
      {{L"US"},
       {L"linear model", L"linear model", L"linear model", L"linear model", L"Linear model",
        L"Linear model", L"linear model", L"linear model"}},
      {{L"DE"},
       {L"linear Model", L"linear Model", L"linear Model", L"linear Model", L"Linear Model",
        L"Linear Model", L"Linear Model", L"Linear Model"}},
      {{L"JP", L"CS", L"CN"},
       {L"linear Model", L"linearModel", L"linear Model", L"linearModel", L"linear Model",
        L"linearModel", L"linear Model", L"linearModel"}},
      {{L"us", L"Us", L"U", L"USA", L"US ", L" US", L"EN", L""}, {}},
  };
  for (const Row& row : rows) {
    for (const std::wstring& language : row.languages) {
      for (int bits = 0; bits < 8; ++bits) {
        EXPECT_EQ(bothForms(L"linear", L"Model", language, flagsOf(bits)), row.phrases[bits])
            << bits << ' ' << ::testing::PrintToString(language);
      }
    }
  }
}

TEST(AdjectiveNoun, MissingAndUpperCaseWords) {
  struct Row {
    std::wstring adjective, noun, language;
    int flags;
    std::wstring phrase;
  };
  const std::vector<Row> rows{
      {L"", L"Model", L"US", 0b100, L" model"},
      {L"", L"Model", L"ES", 0b000, L"Model "},
      {L"", L"Model", L"DE", 0b111, L" Model"},
      {L"", L"", L"US", 0b001, L" "},
      {L"", L"", L"ES", 0b000, L" "},
      {L"", L"", L"ES", 0b001, L""},
      {L"Linear", L"", L"ES", 0b011, L"linear"},
      {L"Linear", L"", L"ES", 0b010, L" Linear"},
      {L"Linear", L"", L"JP", 0b111, L"Linear"},
      {L"Linear", L"MODEL", L"US", 0b000, L"Linear mODEL"},
      {L"Linear", L"", L"DE", 0b010, L"Linear "},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(bothForms(row.adjective, row.noun, row.language, flagsOf(row.flags)), row.phrase);
  }
}

TEST(AdjectiveNoun, CodeIsComparedWhole) {
  EXPECT_EQ(LocalAN(L"a", L"b", std::wstring(L"US\0", 3), 0, 0, 0), L"");
}

TEST(AdjectiveNoun, FlagsReadTheirLow16Bits) {
  for (std::int32_t low = 0; low <= 0xFFFF; ++low) {
    for (const std::int32_t high : {0, 0x10000, static_cast<std::int32_t>(0xFFFF0000)}) {
      const HostBool flag = low | high;
      const bool set = low != 0;
      ASSERT_EQ(LocalAN(L"a", L"B", L"DE", flag, 0, 0), set ? L"A B" : L"a B") << flag;
      ASSERT_EQ(LocalAN(L"a", L"B", L"FR", 0, flag, 0), set ? L"b a" : L"B a") << flag;
      ASSERT_EQ(LocalAN(L"a", L"B", L"CN", 0, 0, flag), set ? L"aB" : L"a B") << flag;
      ASSERT_EQ(LowerFirst(L"A", L"DE", flag), set ? L"a" : L"A") << flag;
    }
  }
}

}  // namespace
