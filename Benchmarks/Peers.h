// What a user of other libraries writes for the work of the library's routines, from a text to a new
// one. On texts of 16-bit units and on wide ones alike, but for ICU, which has the former alone, and
// Abseil, whose strings have 8-bit units: of it, the algorithms on containers take part.
#ifndef BENCHMARKS_PEERS_H
#define BENCHMARKS_PEERS_H

#include <absl/algorithm/container.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <boost/algorithm/string.hpp>
#include <cstdint>
#include <iterator>
#include <string>

namespace benchmarks {

template <typename Text>
using UnitOf = typename Text::value_type;

// With the standard library.
namespace standard {

template <typename Text>
Text replaceAll(const Text& text, const Text& pattern, const Text& replacement) {
  Text result;
  result.reserve(text.size());
  std::size_t from = 0;
  for (std::size_t at; (at = text.find(pattern, from)) != text.npos; from = at + pattern.size()) {
    result.append(text, from, at - from).append(replacement);
  }
  return result.append(text, from);
}

template <typename Text>
Text replaceUnit(Text text, UnitOf<Text> unit, UnitOf<Text> replacement) {
  std::replace(text.begin(), text.end(), unit, replacement);
  return text;
}

template <typename Text>
Text removeUnit(Text text, UnitOf<Text> unit) {
  std::erase(text, unit);
  return text;
}

// Takes the first unit out of each pair, also out of those that come about in this way.
template <typename Text>
Text removeFirstOfPairs(const Text& text, UnitOf<Text> first, UnitOf<Text> second) {
  Text result;
  result.reserve(text.size());
  for (const auto unit : text) {
    while (unit == second && !result.empty() && result.back() == first) result.pop_back();
    result.push_back(unit);
  }
  return result;
}

template <typename Text>
bool isDigit(UnitOf<Text> unit) {
  return unit >= '0' && unit <= '9';
}

template <typename Text>
Text digitsOf(const Text& text) {
  Text result;
  for (const auto unit : text) {
    if (isDigit<Text>(unit)) result.push_back(unit);
  }
  return result;
}

template <typename Text>
Text trim(const Text& text) {
  const std::size_t first = text.find_first_not_of(UnitOf<Text>(' '));
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(UnitOf<Text>(' ')) - first + 1);
}

template <typename Text>
int32_t count(const Text& text, const Text& pattern) {
  int32_t count = 0;
  for (std::size_t at = 0; (at = text.find(pattern, at)) != text.npos; at += pattern.size())
    ++count;
  return count;
}

template <typename Text>
int32_t countUnit(const Text& text, UnitOf<Text> unit) {
  return static_cast<int32_t>(std::count(text.begin(), text.end(), unit));
}

template <typename Text>
Text between(const Text& text, UnitOf<Text> opening, UnitOf<Text> closing) {
  const std::size_t first = text.find(opening) + 1;
  return text.substr(first, text.find(closing, first) - first);
}

template <typename Text>
Text wrap(const Text& text, UnitOf<Text> opening, UnitOf<Text> closing) {
  Text result;
  result.reserve(text.size() + 2);
  result.push_back(opening);
  result.append(text).push_back(closing);
  return result;
}

// The three tokens, each of which begins with `<`.
template <typename Text>
Text processMarkup(const Text& text, const Text (&tokens)[3], const UnitOf<Text> (&units)[3]) {
  Text result;
  result.reserve(text.size());
  std::size_t from = 0;
  for (std::size_t at = 0; (at = text.find(UnitOf<Text>('<'), at)) != text.npos;) {
    const auto* const token =
        std::find_if(std::begin(tokens), std::end(tokens),
                     [&](const Text& one) { return text.compare(at, one.size(), one) == 0; });
    if (token == std::end(tokens)) {
      ++at;
      continue;
    }
    result.append(text, from, at - from).push_back(units[token - std::begin(tokens)]);
    from = at += token->size();
  }
  return result.append(text, from);
}

}  // namespace standard

// With Boost's string algorithms.
namespace withBoost {

using boost::algorithm::erase_all_copy;

template <typename Text>
Text replaceAll(const Text& text, const Text& pattern, const Text& replacement) {
  return boost::algorithm::replace_all_copy(text, pattern, replacement);
}

template <typename Text>
Text trim(const Text& text) {
  return boost::algorithm::trim_copy_if(text, [](UnitOf<Text> unit) { return unit == ' '; });
}

template <typename Text>
int32_t count(const Text& text, const Text& pattern) {
  using Occurrences = boost::algorithm::find_iterator<typename Text::const_iterator>;
  const Occurrences first(text, boost::algorithm::first_finder(pattern));
  return static_cast<int32_t>(std::distance(first, Occurrences()));
}

}  // namespace withBoost

// With Abseil's algorithms on containers.
namespace withAbseil {

template <typename Text>
Text replaceUnit(const Text& text, UnitOf<Text> unit, UnitOf<Text> replacement) {
  Text result(text.size(), 0);
  absl::c_replace_copy(text, result.begin(), unit, replacement);
  return result;
}

template <typename Text>
Text removeUnit(const Text& text, UnitOf<Text> unit) {
  Text result;
  result.reserve(text.size());
  absl::c_remove_copy(text, std::back_inserter(result), unit);
  return result;
}

template <typename Text>
Text digitsOf(const Text& text) {
  Text result;
  absl::c_copy_if(text, std::back_inserter(result), standard::isDigit<Text>);
  return result;
}

template <typename Text>
int32_t countUnit(const Text& text, UnitOf<Text> unit) {
  return static_cast<int32_t>(absl::c_count(text, unit));
}

}  // namespace withAbseil

// With ICU's string.
namespace withIcu {

using Text = icu::UnicodeString;

// findAndReplace() of ICU moves all that follows at each occurrence.
inline Text replaceAll(const Text& text, const Text& pattern, const Text& replacement) {
  Text result(text.length(), 0, 0);
  int32_t from = 0;
  for (int32_t at; (at = text.indexOf(pattern, from)) >= 0; from = at + pattern.length()) {
    result.append(text, from, at - from).append(replacement);
  }
  return result.append(text, from, text.length() - from);
}

inline Text replaceUnit(const Text& text, char16_t unit, char16_t replacement) {
  Text result(text);
  for (int32_t at = -1; (at = result.indexOf(unit, at + 1)) >= 0;)
    result.setCharAt(at, replacement);
  return result;
}

inline int32_t count(const Text& text, const Text& pattern) {
  int32_t count = 0;
  for (int32_t at = 0; (at = text.indexOf(pattern, at)) >= 0; at += pattern.length()) ++count;
  return count;
}

inline Text digitsOf(const Text& text) {
  Text result;
  for (int32_t i = 0; i < text.length(); ++i) {
    if (standard::isDigit<std::u16string>(text[i])) result.append(text[i]);
  }
  return result;
}

}  // namespace withIcu

}  // namespace benchmarks

#endif
