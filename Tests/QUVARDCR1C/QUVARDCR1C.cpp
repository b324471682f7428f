#include "QUVARDCR1C.h"

#include <thread>

#include "support/Expectations.h"

TEST(Services, EveryUnitInAndOut) {
  const Text wide = allUnits();
  const auto convert = [](BSTR handle) { return convertBSTRtoWstring(handle); };
  EXPECT_GIVES(wcslen16, 0xFFFF, wide);
  EXPECT_GIVES(SysAllocString16, wide, wide);
  EXPECT_GIVES(CW162W32, wide, wide);
  EXPECT_GIVES(convert, wide, wide);
  EXPECT_GIVES(SysAllocString2, wide, wide.c_str());
  EXPECT_GIVES(convertWstringToBSTR, wide, wide);
}

TEST(Services, UnitsBeyond16BitsGoOut) {
  for (const auto& [wide, units] :
       {row(L"\x10000", L"\xD800\xDC00"), row(L"\x103FF", L"\xD800\xDFFF"),
        row(L"\x10400", L"\xD801\xDC00"), row(L"\x1F600", L"\xD83D\xDE00"),
        row(L"\x10FFFF", L"\xDBFF\xDFFF"), row(L"\x110000", L"\xFFFD"),
        row(L"\x7FFFFFFF", L"\xFFFD"), row(L"\x80000000", L"\xFFFD"), row(L"\xFFFFFFFF", L"\xFFFD"),
        row(L"x\x10001y\x110000z\xD83D\xFFFF", L"x\xD800\xDC01y\xFFFDz\xD83D\xFFFF")}) {
    EXPECT_GIVES(SysAllocString2, units, wide);
    EXPECT_GIVES(convertWstringToBSTR, units, wide);
  }
}

TEST(Services, TextEndsAtItsFirstZeroUnit) {
  char16_t units[] = u"ab\0cd";
  BSTR handle = units, null = nullptr;
  EXPECT_EQ(wcslen16(units), 2U);
  EXPECT_EQ(take(SysAllocString16(units)), L"ab");
  EXPECT_EQ(convertBSTRtoWstring(handle), L"ab");
  EXPECT_EQ(take(convertWstringToBSTR(L"ab\0cd"s)), L"ab");
  EXPECT_EQ(convertBSTRtoWstring(null), L"");
  EXPECT_EQ(take(SysAllocString16(nullptr)), L"");
  releaseBSTR(nullptr);
}

TEST(Services, WideBufferIsReusedAndEachThreadHasItsOwn) {
  const B small(u"small"), other(u"other");
  wchar_t* const first = CW162W32(small);
  EXPECT_EQ(CW162W32(other), first);
  wchar_t* ofThread = nullptr;
  std::thread([&] { ofThread = CW162W32(small); }).join();
  EXPECT_NE(ofThread, first);
  EXPECT_EQ(first, L"other"s);
}

TEST(Services, WideBufferFitsTextsOfAnyLength) {
  // Lengths around the sizes at which the buffer grows and is given back, up and down.
  for (const std::size_t length : {255U, 256U, 4095U, 1U << 20, (1U << 20) - 1, 3U << 20, 9U}) {
    ASSERT_GIVES(CW162W32, Text(length, L'x'), Text(length, L'x'));
  }
}
