// Included by every source that computes in doubles: refuses to compile where they are not evaluated as
// written. The contracts promise every bit of a result, and NaN and the infinities as arguments.
//
// g++ sets __GCC_IEC_559 to 0 for each option that gives up a rule of IEEE 754. clang has no macro for
// most of them, so cmake/CompileOptions.cmake refuses them by name. Neither sees an option that a
// compiler wrapper adds, which the test Numerics.Bits notices, nor a host that flushes subnormals or
// changes the rounding mode at run time.
#ifndef QUVARDBS1C_NUMERICS_STRICTDOUBLES_H
#define QUVARDBS1C_NUMERICS_STRICTDOUBLES_H

#include <cfloat>
#include <limits>

#if defined(__FAST_MATH__) || (defined(__FINITE_MATH_ONLY__) && __FINITE_MATH_ONLY__) || \
    (defined(__GCC_IEC_559) && !__GCC_IEC_559)
#error "The numerics promise IEEE doubles bit by bit: compile without -ffast-math and its parts."
#endif

static_assert(std::numeric_limits<double>::is_iec559, "doubles are those of IEEE 754");
static_assert(FLT_EVAL_METHOD == 0, "no operation on doubles is evaluated with more digits");

#endif
