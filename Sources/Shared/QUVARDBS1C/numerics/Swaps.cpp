#include <utility>

#include "QUVARDBS1C.h"

void SwapLng(int32_t* a, int32_t* b) noexcept { std::swap(*a, *b); }

void SwapDbl(double* a, double* b) noexcept { std::swap(*a, *b); }

void SwapStr(BSTR* a, BSTR* b) noexcept { std::swap(*a, *b); }
