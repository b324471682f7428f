#include "strings/UnitBlocks.h"

#include "support/SmallScopes.h"

TEST(UnitBlocks, VectorsAgreeWithThePlainForm) {
  const auto check = [](const auto& block, auto unit) {
    EXPECT_EQ(quvard::blockMatches(block.data(), unit),
              quvard::plainBlockMatches(block.data(), unit))
        << testing::PrintToString(block) << ", " << testing::PrintToString(unit);
  };
  // Code units that differ in few bits: each at each index among each of the others.
  const Text units = L"\x41\x10041\x80000041\x8041\x7FFF\x8000\xFFFF"s + L'\0';
  forEach(
      [&](wchar_t others, wchar_t single, wchar_t unit) {
        for (std::size_t i = 0; i < quvard::kBlockUnits; ++i) {
          Text block(quvard::kBlockUnits, others);
          block[i] = single;
          check(block, unit);
          check(narrow(block), static_cast<char16_t>(unit));
        }
      },
      units, units, units);
}
