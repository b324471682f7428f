// A C++ program that makes host strings, calls host and, if it has them, wide routines, and releases the
// results.
#include <QUVARDBS1C.h>
#include <QUVARDCR1C.h>

#include <iostream>
#include <string>

int main() {
  const BSTR text = SysAllocString16(u" a:b ");
  const BSTR result = VB_RemoveColon(text);
  bool right = std::u16string(result) == u" ab ";
#ifndef QUVARDBS1C_NO_WIDE_ROUTINES
  right = right && LocalAN(L"linear", L"Model", L"FR", QUVARDBS1C_FALSE, QUVARDBS1C_FALSE,
                           QUVARDBS1C_FALSE) == L"Model linear";
#endif
  releaseBSTR(result);
  releaseBSTR(text);
  std::cout << (right ? "right" : "wrong") << '\n';
  return right ? 0 : 1;
}
