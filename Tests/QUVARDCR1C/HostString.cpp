#include "QUVARDCR1C.hpp"

#include <gtest/gtest.h>

using quvard::call;
using quvard::HostString;
using namespace std::string_literals;
using namespace std::string_view_literals;

namespace {

using Row = std::pair<std::string, std::u16string>;

static_assert(quvard::hostBool(true) == -1 && quvard::hostBool(false) == 0);
static_assert(!std::is_copy_constructible_v<HostString> && !std::is_copy_assignable_v<HostString>);
static_assert(std::is_nothrow_move_constructible_v<HostString> &&
              std::is_nothrow_move_assignable_v<HostString>);
// A handle is neither copied nor adopted by mistake.
static_assert(!std::is_constructible_v<HostString, BSTR>);
static_assert(!std::is_constructible_v<HostString, std::nullptr_t>);

template <typename Flag>
constexpr int routinesThatTake = [] {
  constexpr auto takes = [](auto test) {
    return std::is_invocable_v<decltype(test), Flag> ? 1 : 0;
  };
  [[maybe_unused]] double* const p = nullptr;
  [[maybe_unused]] const BSTR s = nullptr;
#define TAKES(...) takes([](auto f) -> decltype((void)__VA_ARGS__) {})
  return TAKES(VB_LocalAN2(BSTR(), BSTR(), BSTR(), f, 0, 0)) +
         TAKES(VB_LocalAN2(BSTR(), BSTR(), BSTR(), 0, 0, f)) +
         TAKES(VB_LowerFirst(BSTR(), BSTR(), f)) + TAKES(VB_OptimalFormat(1.0, 3, f, -1)) +
         TAKES(VB_OptimalFormat(1, 3, -1, f)) + TAKES(Int05(2.5, f)) + TAKES(Int05c(2, f)) +
         TAKES(Int05LU(2.5, f, f)) + TAKES(Int05LU(2.5, 0, f)) +
         TAKES(LinearInterpol(1, 3, 2, 6, (double*)0, (double*)0, f)) +
         TAKES(QuadraticInterpol(1, 2, 4, 0, 0, 6, (double*)0, (double*)0, (double*)0, f)) +
         TAKES(LocalAN(L"a", L"n", L"US", 0, f, 0)) + TAKES(LowerFirst(L"A", L"US", f)) +
         TAKES(OptimalFormat(1.0, 3, f, f));
#undef TAKES
}();
static_assert(routinesThatTake<HostBool> == 14 && routinesThatTake<short> == 14);
static_assert(routinesThatTake<bool> == 0);

}  // namespace

TEST(HostString, WellFormedUtf8ThereAndBack) {
  for (const auto& [utf8, utf16] :
       {Row(""s, u""s), Row("a\x7F"s, u"a\x7F"s), Row("a\0b"s, u"a\0b"s),
        Row("\xC2\x80\xDF\xBF"s, u"\x80\x7FF"s), Row("\xE0\xA0\x80\xEF\xBF\xBF"s, u"\x800\xFFFF"s),
        Row("\xED\x9F\xBF\xEE\x80\x80"s, u"\xD7FF\xE000"s),
        Row("linéaire モデル"s, u"linéaire モデル"s),
        Row("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"s, u"\xD800\xDC00\xDBFF\xDFFF"s),
        Row("\xF0\x9D\x84\x9E\xF3\xBF\xBF\xBF"s, u"\xD834\xDD1E\xDBBF\xDFFF"s)}) {
    EXPECT_EQ(quvard::utf16FromUtf8(utf8), utf16);
    EXPECT_EQ(quvard::utf8FromUtf16(utf16), utf8);
  }
}

TEST(HostString, EachMaximalSubpartOfMalformedUtf8IsReplaced) {
  for (const auto& [utf8, expected] :
       {Row("\x80z\xBF"s, u"�z�"s),                    // continuation bytes alone
        Row("\xC0\xAF\xC1\xBF"s, u"����"s),            // overlong, two bytes
        Row("\xE0\x80\x80\xE0\x9F\xBF"s, u"������"s),  // overlong, three bytes
        Row("\xF0\x80\x80\x80\xF0\x8F\xBF\xBF"s, u"��������"s),
        Row("\xED\xA0\x80\xED\xBF\xBF"s, u"������"s),  // surrogates
        Row("\xF4\x90\x80\x80"s, u"����"s),            // above U+10FFFF
        Row("\xF5\x80\xFE\xFF"s, u"����"s),            // no lead bytes
        Row("\xC3"s, u"�"s), Row("\xC3z"s, u"�z"s),    // cut off
        Row("\xE2\x82x\xE2\x82"s, u"�x�"s), Row("\xF0\x9D\x84\xC3\xA9"s, u"�é"s),
        Row("\xF0\x9D\xE2\x82\xAC"s, u"�€"s), Row("\xF0\xF0\x9D\x84\x9E"s, u"�𝄞"s)}) {
    EXPECT_EQ(quvard::utf16FromUtf8(utf8), expected) << testing::PrintToString(utf8);
  }
}

TEST(HostString, UnpairedSurrogatesAreReplacedInUtf8) {
  for (const auto& [expected, utf16] :
       {Row("�x�", u"\xD800x\xDC00"), Row("�", u"\xDBFF"), Row("��", u"\xDFFF\xD800"),
        Row("�𝄞�", u"\xD834\xD834\xDD1E\xDD1E"), Row("�\xEE\x80\x80", u"\xD800\xE000")}) {
    EXPECT_EQ(quvard::utf8FromUtf16(utf16), expected);
  }
}

TEST(HostString, MakesReadsAndMoves) {
  const std::u16string text = u"abcd";
  HostString a(std::u16string_view(text).substr(1, 2));  // not null-terminated
  EXPECT_EQ(a.view(), u"bc");
  EXPECT_EQ(HostString(u"𝄞\0x"sv).utf8(), "𝄞");
  EXPECT_EQ(HostString(std::u16string_view()).view(), u"");
  EXPECT_NE(HostString(std::u16string_view()).handle(), nullptr);

  HostString b(std::move(a));
  EXPECT_EQ(b.view(), u"bc");
  EXPECT_EQ(a.handle(), nullptr);  // NOLINT(bugprone-use-after-move)
  EXPECT_EQ(a.view(), u"");
  EXPECT_EQ(a.utf8(), "");
  a = HostString(u"other");
  a = std::move(b);
  HostString& itself = a;
  a = std::move(itself);
  EXPECT_EQ(a.view(), u"bc");
  std::swap(a, b);
  EXPECT_EQ(b.view(), u"bc");
}

TEST(HostString, AdoptsAndDetaches) {
  const BSTR handle = SysAllocString16(u"text");
  HostString owner = HostString::adopt(handle);
  EXPECT_EQ(owner.handle(), handle);
  EXPECT_EQ(owner.detach(), handle);
  EXPECT_EQ(owner.handle(), nullptr);
  EXPECT_EQ(owner.detach(), nullptr);
  releaseBSTR(handle);
  EXPECT_EQ(HostString::adopt(nullptr).view(), u"");
}

TEST(HostString, CallsRoutines) {
  const HostString text(u"a,b");
  char16_t unowned[] = u",";
  EXPECT_EQ(call(VB_Replace, "é𝄞", "é"s, "à"sv).utf8(), "à𝄞");
  EXPECT_EQ(call(VB_Replace, text, unowned, u"; "s).view(), u"a; b");
  EXPECT_EQ(call(VB_StrLeft, HostString(u"temporary"), 4).view(), u"temp");
  EXPECT_EQ(call(VB_RemoveColon, nullptr).handle(), nullptr);
  EXPECT_EQ(call(VB_StrLeft, "ab\0c"sv, 9).view(), u"ab");
  EXPECT_EQ(call(ChrCount, text, ","), 1);

  EXPECT_EQ(call(VB_LocalAN2, "linear", "Model", "US", true, false, QUVARDBS1C_FALSE).utf8(),
            "Linear model");
  EXPECT_EQ(call(VB_LocalAN2, "linear", "Model", "US", 0, false, false).utf8(), "linear model");
  double x = 2, y = 0;
  EXPECT_EQ(call(LinearInterpol, 1, 3, 2, 6, &x, &y, true), 0);
  EXPECT_EQ(y, 4);
  EXPECT_EQ(call(IsEvenLng, 4), QUVARDBS1C_TRUE);
}

TEST(HostString, CopiesAnArgumentThatTheRoutineReturns) {
  const HostString text(u"a,b");
  const HostString result = call(VB_Replace, text, nullptr, ";");
  EXPECT_EQ(result.view(), u"a,b");
  EXPECT_NE(result.handle(), text.handle());
  EXPECT_EQ(call(VB_Replace, "a,b", nullptr, ";").view(), u"a,b");
  EXPECT_EQ(call(VB_Replace, nullptr, ",", ";").handle(), nullptr);
  // What the contract of VB_Replace says of its text.
  EXPECT_EQ(call(VB_Replace, text, ",", ";").view(), u"a;b");
  EXPECT_EQ(text.view(), u"a;b");
}
