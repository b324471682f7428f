#include <gtest/gtest.h>

#include <vector>

#include "support/HostStrings.h"

namespace {

TEST(FirstLetter, Lower) {
  struct Row {
    std::wstring text, language;
    HostBool forceDE;
    std::wstring expected;
  };
  const std::vector<Row> rows{
      {L"Model", L"US", 0, L"model"},
      {L"MODEL", L"FR", -1, L"mODEL"},
      {L"Model", L"ES", 0, L"model"},
      {L"Model", L"IT", 0, L"model"},
      {L"Model", L"PT", 0, L"model"},
      {L"Model", L"PL", 0, L"model"},
      {L"Model", L"CS", 0, L"model"},
      {L"Model", L"CN", 0, L"model"},
      {L"Model", L"DE", 0, L"Model"},
      {L"Model", L"DE", -1, L"model"},
      {L"Model", L"DE", 1, L"model"},
      {L"Model", L"DE", 0x10000, L"Model"},
      {L"Model", L"JP", 0, L"Model"},
      {L"Model", L"JP", -1, L"Model"},
      {L"Model", L"de", 0, L"model"},
      {L"Model", L"XX", 0, L"model"},
      {L"Model", L"", 0, L"model"},
      {L"", L"US", 0, L""},
      {L"", L"DE", -1, L""},
      {L" Model", L"US", 0, L" Model"},
      {L"9Model", L"US", 0, L"9Model"},
      {L"\x0141X", L"US", 0, L"\x0141X"},
      {L"M", L"US", 0, L"m"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(LowerFirst(row.text, row.language, row.forceDE), row.expected);
    EXPECT_EQ(taken(VB_LowerFirst(B(row.text), B(row.language), row.forceDE)), row.expected);
  }
  EXPECT_EQ(taken(VB_LowerFirst(B(u"Model"), nullptr, 0)), L"model");
}

TEST(FirstLetter, Upper) {
  struct Row {
    std::wstring text, expected;
  };
  const std::vector<Row> rows{
      {L"linear", L"Linear"},   {L"Linear", L"Linear"}, {L"l", L"L"},
      {L" linear", L" linear"}, {L"7up", L"7up"},       {L"", L""},
      {L"\x0142x", L"\x0142x"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(UpperFirst(row.text), row.expected);
    EXPECT_EQ(taken(VB_UpperFirst(B(row.text))), row.expected);
  }
}

}  // namespace
