#ifndef EXAMPLES_UTF8_H
#define EXAMPLES_UTF8_H

#include <string>

// Between UTF-8, which the report reads and prints, and the host's 16-bit units. What is not well
// formed becomes U+FFFD.
std::u16string unitsOfUtf8(const std::string& utf8);
std::string utf8OfUnits(const std::u16string& units);

#endif
