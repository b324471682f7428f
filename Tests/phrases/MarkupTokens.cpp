#include "support/SmallScopes.h"

TEST(MarkupTokens, InTheirPlace) {
  for (const auto& [text, expected] :
       {row(L"a<BR>b<QM>c<CM>d", L"a\nb\"c,d"), row(L"<br>< BR><BR >", L"<br>< BR><BR >"),
        row(L"<B<QM>R>", L"<B\"R>"), row(L"<<BR>><BR", L"<\n><BR"), row(L"", L"")}) {
    EXPECT_GIVES(QUVARDHTMLProcessor, expected, text);
  }
  EXPECT_GIVES(QUVARDHTMLProcessor, L"\0\n\0"s, L"\0<BR>\0"s);
}

TEST(MarkupTokens, OfEveryShortText) {
  EXPECT_SAME(QUVARDHTMLProcessor, stepwise::QUVARDHTMLProcessor, textsUpTo(6, L"<>BRQMC"));
}
