// Included by all that computes in doubles: refuses to compile where they are not evaluated as
// written. The contracts promise every bit of a result, and NaN and the infinities as arguments.
#ifndef QUVARDBS1C_NUMERICS_STRICTDOUBLES_H
#define QUVARDBS1C_NUMERICS_STRICTDOUBLES_H

#include <cfloat>
#include <limits>

#if defined(__FAST_MATH__) || (defined(__FINITE_MATH_ONLY__) && __FINITE_MATH_ONLY__)
#error "The numerics promise IEEE doubles bit by bit: compile them without -ffast-math."
#endif

static_assert(std::numeric_limits<double>::is_iec559, "doubles are those of IEEE 754");
static_assert(FLT_EVAL_METHOD == 0, "no operation on doubles is evaluated with more digits");

#endif
