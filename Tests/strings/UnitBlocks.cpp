#include "strings/UnitBlocks.h"

#include "support/SmallScopes.h"

TEST(UnitBlocks, VectorsMatchWhatThePlainFormMatches) {
  const auto check = [](const auto& block, auto sought) {
    EXPECT_EQ(quvard::blockMatches(block.data(), sought),
              quvard::plainBlockMatches(block.data(), sought))
        << "of " << testing::PrintToString(block) << " for " << testing::PrintToString(sought);
  };
  // Units that agree in their low 16 bits, or in all but the highest bit: each at each place among
  // each of the others.
  const Text units = L"\x41\x10041\x80000041\x8041\x7FFF\x8000\xFFFF"s + L'\0';
  forEach(
      [&](wchar_t others, wchar_t unit, wchar_t sought) {
        for (std::size_t at = 0; at < quvard::kBlockUnits; ++at) {
          Text block(quvard::kBlockUnits, others);
          block[at] = unit;
          check(block, sought);
          check(narrow(block), static_cast<char16_t>(sought));
        }
      },
      units, units, units);
}

TEST(UnitBlocks, EveryLength) {
  for (std::size_t size = 0; size <= quvard::kMatchedUnits; ++size) {
    for (std::size_t at = 0; at < size; ++at) {
      Text text(size, L'a');
      text[at] = L'b';
      ASSERT_EQ(quvard::matches<wchar_t>(text, L'b'), uint64_t{1} << at)
          << showCall("matches", text, L"b");
    }
  }
}
