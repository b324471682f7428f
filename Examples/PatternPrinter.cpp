#include "PatternPrinter.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kSignificantDigits = 15;

std::string format(const char* conversion, int decimals, double value) {
  std::string text(
      static_cast<std::size_t>(std::snprintf(nullptr, 0, conversion, std::max(decimals, 0), value)),
      ' ');
  std::snprintf(text.data(), text.size() + 1, conversion, std::max(decimals, 0), value);
  return text;
}

// Removes trailing zeros after the first `always` decimals.
std::string withoutSpareZeros(std::string digits, std::size_t always) {
  const std::size_t point = digits.find('.');
  if (point == std::string::npos) return digits;
  while (digits.back() == '0' && digits.size() > point + 1 + always) digits.pop_back();
  if (digits.back() == '.') digits.pop_back();
  return digits;
}

std::string printedExponent(int exponent, const std::string& pattern) {
  const auto width = static_cast<std::size_t>(std::count(pattern.begin(), pattern.end(), '0'));
  std::string digits = std::to_string(std::abs(exponent));
  if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
  const char* const sign = exponent < 0 ? "-" : pattern[1] == '+' ? "+" : "";
  return std::string("E") + sign + digits;
}

}  // namespace

std::string formatNumber(double value, const std::string& pattern) {
  if (!std::isfinite(value)) return format("%.*f", 0, value);
  const std::size_t exponentAt = std::min(pattern.find('E'), pattern.size());
  const std::string mantissa = pattern.substr(0, exponentAt);
  const std::size_t point = std::min(mantissa.find('.'), mantissa.size() - 1);
  const std::size_t decimals = mantissa.size() - 1 - point;
  const auto always =
      static_cast<std::size_t>(std::count(mantissa.begin(), mantissa.end(), '0')) - point;

  if (exponentAt < pattern.size()) {
    std::string text =
        format("%.*e", std::min(static_cast<int>(decimals), kSignificantDigits - 1), value);
    const std::size_t e = text.find('e');
    const int exponent = static_cast<int>(std::strtol(text.c_str() + e + 1, nullptr, 10));
    return withoutSpareZeros(text.substr(0, e), always) +
           printedExponent(exponent, pattern.substr(exponentAt));
  }
  // Decimals after the 15th significant digit are printed only if every decimal is "0".
  int shown = static_cast<int>(decimals);
  if (always < decimals && value != 0.0) {
    const int magnitude = static_cast<int>(std::floor(std::log10(std::abs(value))));
    shown = std::min(shown, kSignificantDigits - 1 - magnitude);
  }
  return withoutSpareZeros(format("%.*f", shown, value), always);
}
