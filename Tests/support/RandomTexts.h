// Random texts over small alphabets, where patterns occur, overlap and come together.
#ifndef TESTS_SUPPORT_RANDOMTEXTS_H
#define TESTS_SUPPORT_RANDOMTEXTS_H

#include <random>
#include <string>

class RandomTexts {
 public:
  std::wstring next(const std::wstring& alphabet, std::size_t longest) {
    std::wstring text(below(longest + 1), L' ');
    for (wchar_t& unit : text) unit = alphabet[below(alphabet.size())];
    return text;
  }

  std::size_t below(std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(engine_);
  }

 private:
  std::mt19937 engine_{20260101};
};

#endif
