#include "Utf8.h"

#include <cstdint>

namespace {

constexpr char32_t kReplacement = 0xFFFD;

// The code point at `at`, which moves past it; kReplacement for a byte that begins none.
char32_t decode(const std::string& utf8, std::size_t& at) {
  const auto byte = [&utf8](std::size_t i) { return static_cast<std::uint8_t>(utf8[i]); };
  const std::uint8_t lead = byte(at++);
  if (lead < 0x80) return lead;
  const std::size_t more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
  if (lead < 0xC2 || lead > 0xF4 || at + more > utf8.size()) return kReplacement;
  char32_t value = lead & (0x3Fu >> more);
  for (std::size_t i = 0; i < more; ++i) {
    if ((byte(at + i) & 0xC0) != 0x80) return kReplacement;
    value = value << 6 | (byte(at + i) & 0x3Fu);
  }
  constexpr char32_t kLowest[] = {0x80, 0x80, 0x800, 0x10000};
  if (value < kLowest[more] || value > 0x10FFFF || (value & 0xFFFFF800) == 0xD800) {
    return kReplacement;
  }
  at += more;
  return value;
}

void append(std::string& utf8, char32_t value) {
  if (value < 0x80) {
    utf8 += static_cast<char>(value);
    return;
  }
  const int more = value < 0x800 ? 1 : value < 0x10000 ? 2 : 3;
  utf8 += static_cast<char>((0xFF00u >> (more + 1)) | (value >> (6 * more)));
  for (int i = more - 1; i >= 0; --i) utf8 += static_cast<char>(0x80 | (value >> (6 * i) & 0x3F));
}

}  // namespace

std::u16string unitsOfUtf8(const std::string& utf8) {
  std::u16string units;
  for (std::size_t at = 0; at < utf8.size();) {
    const char32_t value = decode(utf8, at);
    if (value < 0x10000) {
      units += static_cast<char16_t>(value);
    } else {
      units += static_cast<char16_t>(0xD800 + ((value - 0x10000) >> 10));
      units += static_cast<char16_t>(0xDC00 + ((value - 0x10000) & 0x3FF));
    }
  }
  return units;
}

std::string utf8OfUnits(const std::u16string& units) {
  std::string utf8;
  for (std::size_t at = 0; at < units.size(); ++at) {
    const char16_t unit = units[at];
    const bool pair = unit >= 0xD800 && unit < 0xDC00 && at + 1 < units.size() &&
                      units[at + 1] >= 0xDC00 && units[at + 1] < 0xE000;
    if (pair) {
      append(utf8, 0x10000 + ((unit - 0xD800u) << 10) + (units[++at] - 0xDC00u));
    } else {
      append(utf8, unit >= 0xD800 && unit < 0xE000 ? kReplacement : static_cast<char32_t>(unit));
    }
  }
  return utf8;
}
