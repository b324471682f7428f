#include "QUVARDCR1C.h"

#include <thread>

#include "support/HostStrings.h"

TEST(Services, EveryUnitInAndOut) {
  const Text wide = allUnits();
  const std::u16string all = narrowed(wide);
  EXPECT_EQ(wcslen16(all.c_str()), 0xFFFFU);
  BSTR handle = SysAllocString16(all.c_str());
  EXPECT_EQ(CW162W32(handle), wide);
  EXPECT_EQ(convertBSTRtoWstring(handle), wide);
  EXPECT_EQ(taken(handle), wide);
  EXPECT_EQ(taken(SysAllocString2(wide.c_str())), wide);
  EXPECT_EQ(taken(convertWstringToBSTR(wide)), wide);
}

TEST(Services, UnitsBeyond16BitsGoOut) {
  for (const auto& [wide, units] :
       {row(L"\x10000", L"\xD800\xDC00"), row(L"\x103FF", L"\xD800\xDFFF"),
        row(L"\x10400", L"\xD801\xDC00"), row(L"\x1F600", L"\xD83D\xDE00"),
        row(L"\x10FFFF", L"\xDBFF\xDFFF"), row(L"\x110000", L"\xFFFD"),
        row(L"\x7FFFFFFF", L"\xFFFD"), row(L"\x80000000", L"\xFFFD"), row(L"\xFFFFFFFF", L"\xFFFD"),
        row(L"x\x10001y\x110000z\xD83D\xFFFF", L"x\xD800\xDC01y\xFFFDz\xD83D\xFFFF")}) {
    EXPECT_EQ(taken(SysAllocString2(wide)), units);
    EXPECT_EQ(taken(convertWstringToBSTR(wide)), units);
  }
}

TEST(Services, TextEndsAtItsFirstZeroUnit) {
  char16_t units[] = u"ab\0cd";
  BSTR handle = units, null = nullptr;
  EXPECT_EQ(wcslen16(units), 2U);
  EXPECT_EQ(taken(SysAllocString16(units)), L"ab");
  EXPECT_EQ(convertBSTRtoWstring(handle), L"ab");
  EXPECT_EQ(taken(convertWstringToBSTR(L"ab\0cd"s)), L"ab");
  EXPECT_EQ(convertBSTRtoWstring(null) + taken(SysAllocString16(nullptr)), L"");
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
    const Text wide(length, L'x');
    ASSERT_EQ(CW162W32(B(wide)), wide) << length;
  }
}
