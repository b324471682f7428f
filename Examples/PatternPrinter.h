// Prints numbers by the patterns that the library builds, as a host does.
#ifndef EXAMPLES_PATTERNPRINTER_H
#define EXAMPLES_PATTERNPRINTER_H

#include <string>

// `value` by `pattern`: digits "0" (always printed) and "#" (printed when significant) around a
// point, and optionally "E-" or "E+" with the digits of the exponent. A number has 15 significant
// digits.
std::string formatNumber(double value, const std::string& pattern);

#endif
