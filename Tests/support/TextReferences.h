// Reference implementations of the text and number pattern routines: as plain as the contracts allow.
#ifndef TESTS_SUPPORT_TEXTREFERENCES_H
#define TESTS_SUPPORT_TEXTREFERENCES_H

#include <algorithm>

#include "support/Doubles.h"
#include "support/HostStrings.h"

namespace reference {

inline bool isSet(HostBool flag) { return flag % 0x10000 != 0; }

inline Text StrLeft(const Text& s, int32_t n) {
  return s.substr(0, n < 0 ? s.npos : static_cast<std::size_t>(n));
}

inline Text StrRight(const Text& s, int32_t n) { return s.substr(s.size() - StrLeft(s, n).size()); }

inline Text StrConcat(Text a, Text b, Text c, Text d, Text e, Text f) {
  return a + b + c + d + e + f;
}

inline Text StrLTrim(Text s) {
  while (s.starts_with(L' ')) s.erase(0, 1);
  return s;
}

inline Text StrRTrim(Text s) {
  while (s.ends_with(L' ')) s.pop_back();
  return s;
}

inline Text StrLRTrim(const Text& s) { return StrLTrim(StrRTrim(s)); }

// In the locale "C".
inline wchar_t lower(wchar_t unit) { return unit >= L'A' && unit <= L'Z' ? unit + 32 : unit; }
inline wchar_t upper(wchar_t unit) { return unit >= L'a' && unit <= L'z' ? unit - 32 : unit; }

inline Text UpperFirst(Text text) {
  if (!text.empty()) text[0] = upper(text[0]);
  return text;
}

inline Text LowerFirst(Text text, const Text& language, HostBool forceDE) {
  const bool isUnchanged = language == L"JP" || (language == L"DE" && !isSet(forceDE));
  if (!text.empty() && !isUnchanged) text[0] = lower(text[0]);
  return text;
}

inline Text LocalAN(const Text& adjective, const Text& noun, const Text& language,
                    HostBool upperAdjective, HostBool lowerResult, HostBool noBlank) {
  const auto is = [&](std::initializer_list<Text> codes) {
    return std::find(codes.begin(), codes.end(), language) != codes.end();
  };
  const Text separator = isSet(noBlank) ? L"" : L" ";
  const Text first = isSet(upperAdjective) ? UpperFirst(adjective) : adjective;
  const auto finish = [&](const Text& phrase) {
    return isSet(lowerResult) ? LowerFirst(phrase, L"", 0) : phrase;
  };
  if (is({L"ES", L"FR", L"IT", L"PT", L"PL"})) return finish(noun + separator + adjective);
  if (is({L"US"})) return finish(first + L" " + LowerFirst(noun, L"", 0));
  if (is({L"DE"})) return first + L" " + noun;
  if (is({L"JP", L"CS", L"CN"})) return adjective + separator + noun;
  return L"";
}

// Removes one code unit, then searches from the start again.
inline Text RemoveChar(Text s, const Text& chars) {
  for (std::size_t at; !chars.empty() && (at = s.find(chars)) != s.npos;) s.erase(at, 1);
  return s;
}

inline Text VB_RemoveColon(const Text& s) { return RemoveChar(s, L":"); }
inline Text RemoveColon(const Text& s) { return StrLRTrim(RemoveChar(s, L":")); }
inline Text RemoveSemicolon(const Text& s) { return StrLRTrim(RemoveChar(s, L";")); }

inline Text RemoveNonNumericChar(Text s) {
  std::erase_if(s, [](wchar_t unit) { return unit < L'0' || unit > L'9'; });
  return s;
}

inline HostBool CommonChar(const Text& text, const Text& chars) {
  return text.find_first_of(chars) != text.npos ? -1 : 0;
}

inline int32_t cChrCount(Text text, Text pattern) {
  text = text.c_str(), pattern = pattern.c_str();
  int32_t count = 0;
  for (std::size_t at = 0; !pattern.empty() && (at = text.find(pattern, at)) != text.npos;) {
    ++count;
    at += pattern.size();
  }
  return count;
}

inline Text StrFromTo(const Text& text, int32_t from, int32_t to) {
  const auto size = static_cast<int32_t>(text.size());
  if (from < 1 || to > size || from > to) return L"";
  return text.substr(static_cast<std::size_t>(from) - 1, static_cast<std::size_t>(to - from) + 1);
}

inline Text StrBetween(const Text& text, int32_t from, int32_t to) {
  const Text slice = StrFromTo(text, from, to);
  return slice.size() < 2 ? L"" : slice.substr(1, slice.size() - 2);
}

inline bool areDelimiters(const Text& opening, const Text& closing) {
  return opening.empty() || closing.empty() || opening.size() * closing.size() == 1;
}

inline Text StrFromChrToChr(const Text& text, const Text& opening, const Text& closing) {
  const std::size_t first = text.find(opening), last = text.find(closing);
  const bool areFound = areDelimiters(opening, closing) && first <= last && last != text.npos;
  return areFound ? text.substr(first, last - first + 1) : L"";
}

inline Text cStrBetweenChrAndChr(const Text& text, const Text& opening, const Text& closing) {
  const std::size_t start = text.find(opening) + 1;  // 0 if it is not found
  if (!areDelimiters(opening, closing) || start == 0 || start > text.size()) return L"";
  const std::size_t end = text.find(closing, start);
  return end == text.npos ? L"" : text.substr(start, end - start);
}

inline Text Replace(const Text& text, const Text& pattern, const Text& replacement) {
  Text result;
  std::size_t from = 0;
  for (std::size_t at; !pattern.empty() && (at = text.find(pattern, from)) != text.npos;) {
    result += text.substr(from, at - from) + replacement;
    from = at + pattern.size();
  }
  return result + text.substr(from);
}

inline Text VB_Replace2(const Text& text, const Text& pattern1, const Text& replacement1,
                        const Text& pattern2, const Text& replacement2) {
  return Replace(Replace(text, pattern1, replacement1), pattern2, replacement2);
}

inline Text QUVARDHTMLProcessor(const Text& text) {
  return Replace(VB_Replace2(text, L"<BR>", L"\n", L"<QM>", L"\""), L"<CM>", L",");
}

inline Text SpStrSp(const Text& text) { return L" " + text + L" "; }
inline Text PStrP(const Text& text) { return L"(" + text + L")"; }
inline Text VB_BStrB(const Text& text) { return L"[" + text + L"]"; }

inline Text SingPlural(const Text& singular, const Text& plural, int32_t count) {
  return count < 2 ? singular : plural;
}

inline Text DecimalFormat(int32_t decimals) {
  return decimals < 1 ? L"0" : L"0." + Text(static_cast<std::size_t>(decimals), L'0');
}

inline Text OutputFormat(double value) {
  const auto isIntegral = [](double x) { return !(std::fabs(std::remainder(x, 1.0)) > 1e-12); };
  return (isIntegral(value) ? L"0"s : L"0." + Text(19, L'#')) +
         (isIntegral(value * 1e19) ? L"" : L"E-#");
}

inline Text OptimalFormat(double value, int32_t decimals, HostBool useExponent,
                          HostBool keepDecimals) {
  const auto isIntegral = [](double x) {
    const double integer = std::trunc(x);
    return std::fabs(integer - x) < 1e-12 && integer >= kLowest && integer <= kHighest;
  };
  const double magnitude = std::fabs(value);
  Text mantissa = isIntegral(value) ? L"0" : DecimalFormat(decimals);
  if (!isSet(useExponent) || !(magnitude > 1e-12) || std::isinf(value)) return mantissa;
  const double e = std::trunc(std::log10(magnitude));
  const bool isSmall = e < -static_cast<double>(decimals);
  if (!isSmall && e < 5) return mantissa;
  if (!isSet(keepDecimals) && isIntegral(std::pow(10.0, -e) * value)) mantissa = L"0";
  return mantissa + (isSmall ? L"E-0" : L"E+0") + ((isSmall ? e <= -10 : e >= 10) ? L"0" : L"");
}

}  // namespace reference

#endif
