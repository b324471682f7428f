// What routines give, worked out by the plainest steps that their contracts allow.
#ifndef TESTS_SUPPORT_STEPWISE_H
#define TESTS_SUPPORT_STEPWISE_H

#include <algorithm>

#include "support/Doubles.h"
#include "support/HostStrings.h"

namespace stepwise {

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

// In the default locale.
inline wchar_t lower(wchar_t unit) { return unit >= L'A' && unit <= L'Z' ? unit + 32 : unit; }
inline wchar_t upper(wchar_t unit) { return unit >= L'a' && unit <= L'z' ? unit - 32 : unit; }

inline Text StrLCase(Text s) {
  for (wchar_t& unit : s) unit = lower(unit);
  return s;
}

inline Text UpperFirst(Text text) {
  if (!text.empty()) text[0] = upper(text[0]);
  return text;
}

inline Text LowerFirst(Text text, const Text& language, HostBool forceDE) {
  const bool stays = language == L"JP" || (language == L"DE" && !isSet(forceDE));
  if (!text.empty() && !stays) text[0] = lower(text[0]);
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

// Search from the start, take one unit out, search again.
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
  Text units;
  const bool isWithin = from >= 1 && to >= 0 && static_cast<std::size_t>(to) <= text.size();
  for (int32_t at = from; isWithin && at <= to; ++at) {
    units += text[static_cast<std::size_t>(at) - 1];
  }
  return units;
}

inline Text StrBetween(const Text& text, int32_t from, int32_t to) {
  const Text units = StrFromTo(text, from, to);
  return units.size() < 2 ? L"" : units.substr(1, units.size() - 2);
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
  const auto isWhole = [](double x) { return !(std::fabs(std::remainder(x, 1.0)) > 1e-12); };
  return (isWhole(value) ? L"0"s : L"0." + Text(19, L'#')) + (isWhole(value * 1e19) ? L"" : L"E-#");
}

inline Text OptimalFormat(double value, int32_t decimals, HostBool useExponent,
                          HostBool keepDecimals) {
  const auto isWhole = [](double x) {
    const double whole = std::trunc(x);
    return std::fabs(whole - x) < 1e-12 && whole >= kLowest && whole <= kHighest;
  };
  const double magnitude = std::fabs(value);
  Text mantissa = isWhole(value) ? L"0" : DecimalFormat(decimals);
  if (!isSet(useExponent) || !(magnitude > 1e-12) || std::isinf(value)) return mantissa;
  const double e = std::trunc(std::log10(magnitude));
  const bool isSmall = e < -static_cast<double>(decimals);
  if (!isSmall && e < 5) return mantissa;
  if (!isSet(keepDecimals) && isWhole(std::pow(10.0, -e) * value)) mantissa = L"0";
  return mantissa + (isSmall ? L"E-0" : L"E+0") + ((isSmall ? e <= -10 : e >= 10) ? L"0" : L"");
}

inline double Fact(int32_t n) {
  double r = 1.0;
  for (int32_t i = 2; i <= n && !std::isinf(r); ++i) r = r * i;
  return r;
}

// An r that is infinite, or NaN, stays so.
inline double Cnk(double n, double k) {
  if (k > n) return 0.0;
  if (k == n || k == 0.0) return 1.0;
  int32_t m = truncate(n - k);
  double q = k;
  if (m > k) {
    m = truncate(k);
    q = n - m;
  }
  double r = 1.0 + q;
  for (int32_t i = 2; i <= m && std::isfinite(r); ++i) r = ((q + i) * r) / i;
  return r;
}

inline double SumCnk(double n, double from, double to) {
  double sum = 0.0;
  for (double i = truncate(from); i <= kHighest && to >= i; i += 1.0) sum += ::Cnk(n, i);
  return sum;
}

inline double Mod(int32_t a, int32_t b) {
  return b == 0 ? a : a - std::floor(static_cast<double>(a) / b) * b;
}

// Euclid's algorithm, with the floored remainder.
inline double LCD2(double a, double b) {
  while (b != 0.0) {
    const double r = Mod(truncate(a), truncate(b));
    a = b;
    b = r;
  }
  return std::fabs(a);
}

inline int32_t LCD(int32_t a, int32_t b) { return truncate(LCD2(a, b)); }

inline bool isTrue(HostBool flag) { return (flag & 0xFFFF) == 0xFFFF; }

inline int32_t LinearInterpol(double x1, double x2, double y1, double y2, double* x, double* y,
                              HostBool forward) {
  if (x1 == x2) {
    *x = x1;
    *y = (y1 + y2) * 0.5;
    return -1;
  }
  const double a = (y2 - y1) / (x2 - x1), b = (x2 * y1 - x1 * y2) / (x2 - x1);
  if (!isTrue(forward) && a == 0.0) return -1;
  isTrue(forward) ? * y = b + a** x : * x = (*y - b) / a;
  return 0;
}

inline int32_t QuadraticInterpol(double x1, double x2, double x3, double y1, double y2, double y3,
                                 double* x, double* xSecond, double* y, HostBool forward) {
  if (x1 == x2 || x2 == x3 || x1 == x3) return -1;
  const double xs[] = {x1, x2, x3, x1, x2}, ys[] = {y1, y2, y3, y1, y2};
  const auto divisor = [&](int i) {
    return (xs[i] + xs[i + 1]) * xs[i + 2] - (xs[i] + xs[i + 2]) * xs[i + 1];
  };
  const auto divides = [](double value) { return value < 0.0 || value > 0.0; };
  int i = divides(divisor(0)) ? 0 : divides(divisor(1)) ? 1 : 2, j = i + 1;
  const int k = i + 2;
  const double factor = (1.0 / divisor(i)) / ((xs[j] - xs[i]) * (xs[k] - xs[i]));
  const double p = ((xs[j] * xs[j]) * ys[i] - (xs[i] * xs[i]) * ys[j]) * ((xs[k] - xs[i]) * xs[k]);
  const double q = ((xs[i] * xs[i]) * ys[k] - (xs[k] * xs[k]) * ys[i]) * ((xs[j] - xs[i]) * xs[j]);
  const double c = (q + p) * factor;
  i = divides(x1 * x2) ? 0 : divides(x2 * x3) ? 1 : 2, j = i + 1;
  const double ii = xs[i] * xs[i], jj = xs[j] * xs[j];
  const double b =
      ((jj * ys[i] + (ii - jj) * c) - ii * ys[j]) / ((xs[i] * xs[j]) * (xs[j] - xs[i]));
  i = x1 * x1 == 0.0 ? 1 : 0;
  const double a = ((ys[i] - xs[i] * b) - c) / (xs[i] * xs[i]);
  if (isTrue(forward)) {
    *y = c + (b + a * *x) * *x;
  } else if (a != 0.0) {
    const double discriminant = (c - *y) * (-4.0 * a) + b * b;
    const double root = 0.0 > discriminant ? -kExtreme : std::sqrt(discriminant);
    const double lower = a > 0.0 ? -b - root : root - b, upper = a > 0.0 ? root - b : -b - root;
    *x = (lower * 0.5) / a;
    *xSecond = (0.5 * upper) / a;
  } else if (b != 0.0) {
    *x = (*y - c) / b;
  } else {
    return -1;
  }
  return 0;
}

}  // namespace stepwise

#endif
