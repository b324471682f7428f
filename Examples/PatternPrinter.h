// Prints numbers by the patterns of VB_OutputFormat, VB_OptimalFormat, VB_SetFormat and Cpp_DecimalFormat.
#ifndef EXAMPLES_PATTERNPRINTER_H
#define EXAMPLES_PATTERNPRINTER_H

#include <string>

// Returns `value` printed by `pattern`, for instance formatNumber(2.5, "0.000") == "2.500".
//
// - "0" is a digit that is always printed, "#" one that is printed unless it is a trailing zero.
// - "E" starts the exponent. "E-" prints the sign of a negative exponent only, "E+" both signs.
// - At most 15 significant digits are printed, unless all decimals are "0" and there is no exponent.
// - An infinity prints as "inf", NaN as "nan".
std::string formatNumber(double value, const std::string& pattern);

#endif
