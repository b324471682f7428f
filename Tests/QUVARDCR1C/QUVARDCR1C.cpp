#include "QUVARDCR1C.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <thread>
#include <vector>

#include "support/HostStrings.h"

namespace {

TEST(Services, EveryUnitInAndOut) {
  std::u16string all;
  std::wstring wide;
  for (std::uint32_t value = 1; value <= 0xFFFF; ++value) {
    all.push_back(static_cast<char16_t>(value));
    wide.push_back(static_cast<wchar_t>(value));
  }
  EXPECT_EQ(wcslen16(all.c_str()), 0xFFFFU);
  const B host(all);
  EXPECT_EQ(host.text(), all);
  EXPECT_NE(static_cast<const char16_t*>(host), all.c_str());
  BSTR handle = host;
  EXPECT_EQ(CW162W32(host), wide);
  EXPECT_EQ(convertBSTRtoWstring(handle), wide);
  EXPECT_EQ(taken(SysAllocString2(wide.c_str())), wide);
  EXPECT_EQ(taken(convertWstringToBSTR(wide)), wide);
}

TEST(Services, UnitsBeyond16BitsGoOut) {
  struct Row {
    std::vector<std::uint32_t> wide;
    std::u16string units;
  };
  const std::vector<Row> rows{
      {{0x10000}, {0xD800, 0xDC00}},
      {{0x103FF}, {0xD800, 0xDFFF}},
      {{0x10400}, {0xD801, 0xDC00}},
      {{0x1F600}, {0xD83D, 0xDE00}},
      {{0x10FFFF}, {0xDBFF, 0xDFFF}},
      {{0x110000}, {0xFFFD}},
      {{0x7FFFFFFF}, {0xFFFD}},
      {{0x80000000}, {0xFFFD}},
      {{0xFFFFFFFF}, {0xFFFD}},
      {{'a', 0x10001, 'b', 0x110000, 'c', 0xD83D, 0xFFFF},
       {'a', 0xD800, 0xDC01, 'b', 0xFFFD, 'c', 0xD83D, 0xFFFF}},
  };
  for (const Row& row : rows) {
    const std::wstring wide(row.wide.begin(), row.wide.end());
    EXPECT_EQ(taken(SysAllocString2(wide.c_str())), widened(row.units));
    EXPECT_EQ(taken(convertWstringToBSTR(wide)), widened(row.units));
  }
}

TEST(Services, TextEndsAtItsFirstZeroUnit) {
  char16_t units[] = u"ab\0cd";
  BSTR handle = units;
  EXPECT_EQ(wcslen16(units), 2U);
  EXPECT_EQ(taken(SysAllocString16(units)), L"ab");
  EXPECT_EQ(convertBSTRtoWstring(handle), L"ab");
  EXPECT_EQ(taken(convertWstringToBSTR(std::wstring(L"ab\0cd", 5))), L"ab");
}

TEST(Services, NullGivesTheEmptyString) {
  BSTR null = nullptr;
  EXPECT_EQ(convertBSTRtoWstring(null), L"");
  EXPECT_EQ(taken(SysAllocString16(nullptr)), L"");
  releaseBSTR(nullptr);
}

TEST(Services, WideBufferIsReusedAndEachThreadHasItsOwn) {
  const B small(u"small"), other(u"other");
  wchar_t* const first = CW162W32(small);
  EXPECT_EQ(CW162W32(other), first);
  wchar_t* ofThread = nullptr;
  std::thread([&] { ofThread = CW162W32(small); }).join();
  EXPECT_NE(ofThread, first);
  EXPECT_EQ(first, std::wstring(L"other"));
}

TEST(Services, WideBufferFitsTextsOfAnyLength) {
  // Lengths around the sizes at which the buffer grows and is given back, up and down.
  for (const std::size_t length :
       {255U, 256U, 257U, 4095U, 1U << 20, (1U << 20) - 1, 3U << 20, 9U}) {
    const std::wstring wide(length, L'x');
    ASSERT_EQ(CW162W32(B(wide)), wide) << length;
  }
}

}  // namespace
