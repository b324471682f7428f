#include "strings/UnitBlocks.h"

#include "support/HostStrings.h"

TEST(UnitBlocks, VectorsMatchWhatThePlainFormMatches) {
  // Units that agree in their low 16 bits, or in all but the highest bit.
  const Text units = L"\x41\x10041\x80000041\x8041\x7FFF\x8000\xFFFF"s + L'\0';
  for (int i = 0; i < 10000; ++i) {
    const Text block = randomText(units, 100) + Text(quvard::kBlockUnits, L'\x41');
    const std::u16string narrow = narrowed(block);
    for (const wchar_t sought : units) {
      SCOPED_TRACE(::testing::PrintToString(row(block.substr(0, quvard::kBlockUnits), sought)));
      const auto sought16 = static_cast<char16_t>(sought);
      ASSERT_EQ(quvard::blockMatches(block.data(), sought),
                quvard::plainBlockMatches(block.data(), sought));
      ASSERT_EQ(quvard::blockMatches(narrow.data(), sought16),
                quvard::plainBlockMatches(narrow.data(), sought16));
    }
  }
}

TEST(UnitBlocks, EveryLength) {
  for (std::size_t size = 0; size <= quvard::kMatchedUnits; ++size) {
    for (std::size_t at = 0; at < size; ++at) {
      Text text(size, L'a');
      text[at] = L'b';
      ASSERT_EQ(quvard::matches<wchar_t>(text, L'b'), uint64_t{1} << at) << size;
    }
  }
}
