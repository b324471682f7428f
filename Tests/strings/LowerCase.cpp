#include <gtest/gtest.h>

#include <clocale>
#include <cstdint>
#include <string>

#include "QUVARDBS1C.h"

namespace {

TEST(LowerCase, DefaultLocaleChangesAToZAlone) {
  EXPECT_EQ(StrLCase(L"AbC-9"), L"abc-9");
  EXPECT_EQ(StrLCase(L""), L"");
  for (std::uint32_t value = 0; value <= 0xFFFF; ++value) {
    const auto unit = static_cast<wchar_t>(value);
    const bool letter = unit >= L'A' && unit <= L'Z';
    const std::wstring lowered = StrLCase(std::wstring(2, unit));
    ASSERT_EQ(lowered, std::wstring(2, letter ? static_cast<wchar_t>(unit + 32) : unit)) << value;
  }
}

TEST(LowerCase, ValuesThatAreNoCharacterStay) {
  for (const std::uint32_t value : {0x10FFFFU, 0x110000U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
    const std::wstring text(1, static_cast<wchar_t>(value));
    EXPECT_EQ(StrLCase(text), text) << value;
    EXPECT_EQ(LowerFirst(text, L"", 0), text) << value;
    EXPECT_EQ(UpperFirst(text), text) << value;
  }
}

TEST(LowerCase, FollowsTheLocaleOfTheProcess) {
  if (std::setlocale(LC_CTYPE, "C.UTF-8") == nullptr) GTEST_SKIP() << "no UTF-8 locale here";
  const std::wstring lowered = StrLCase(L"\x0141\x00C9");
  const std::wstring upper = UpperFirst(L"\x0142");
  const std::wstring highest = StrLCase(L"\x10FFFF");
  std::setlocale(LC_CTYPE, "C");
  EXPECT_EQ(lowered, L"\x0142\x00E9");
  EXPECT_EQ(upper, L"\x0141");
  EXPECT_EQ(highest, L"\x10FFFF");
}

}  // namespace
