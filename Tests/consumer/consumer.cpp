// A C++ program that calls host routines and, if they are declared, wide routines.
#include <QUVARDBS1C.h>
#include <QUVARDCR1C.h>
#if __cplusplus >= 201703L
#include <QUVARDCR1C.hpp>
#endif

#include <iostream>
#include <string>

int main() {
  const BSTR text = SysAllocString16(u" a:b ");
  const BSTR result = VB_RemoveColon(text);
  bool right = std::u16string(result) == u" ab ";
#if __cplusplus >= 201703L
  right = right && quvard::call(VB_SpStrSp, "é").utf8() == " é ";
#endif
#ifndef QUVARDBS1C_NO_WIDE_ROUTINES
  right = right && LocalAN(L"linear", L"Model", L"FR", QUVARDBS1C_FALSE, QUVARDBS1C_FALSE,
                           QUVARDBS1C_FALSE) == L"Model linear";
#endif
  releaseBSTR(result);
  releaseBSTR(text);
  std::cout << (right ? "right" : "wrong") << '\n';
  return right ? 0 : 1;
}
