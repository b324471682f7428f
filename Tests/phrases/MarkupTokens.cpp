#include <gtest/gtest.h>

#include <vector>

#include "support/HostStrings.h"

namespace {

TEST(MarkupTokens, BothForms) {
  struct Row {
    std::wstring text, expected;
  };
  const std::vector<Row> rows{
      {L"a<BR>b<QM>c<CM>d", L"a\nb\"c,d"},
      {L"<BR><BR><BR>", L"\n\n\n"},
      {L"<CM><QM><BR><CM>", L",\"\n,"},
      {L"<br><Br>< BR><BR >", L"<br><Br>< BR><BR >"},
      {L"<B<QM>R>", L"<B\"R>"},
      {L"<<BR>>", L"<\n>"},
      {L"a < b > c", L"a < b > c"},
      {L"<BR", L"<BR"},
      {L"", L""},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(QUVARDHTMLProcessor(row.text), row.expected);
    EXPECT_EQ(taken(VB_QUVARDHTMLProcessor(B(row.text))), row.expected);
  }
  EXPECT_EQ(QUVARDHTMLProcessor(std::wstring(L"\0<BR>\0", 6)), std::wstring(L"\0\n\0", 3));
}

}  // namespace
