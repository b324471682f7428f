/* A C program that calls host and numeric routines. */
#include <QUVARDBS1C.h>
#include <QUVARDCR1C.h>
#include <stdio.h>

int main(void) {
  const uint_least16_t units[] = {'a', ':', 'b', 0};
  const BSTR text = SysAllocString16(units);
  const BSTR result = VB_RemoveColon(text);
  double x = 2, y = 0;
  const int right = wcslen16(result) == 2 && result[0] == 'a' && result[1] == 'b' &&
                    LinearInterpol(1, 3, 2, 6, &x, &y, QUVARDBS1C_TRUE) == 0 && y > 3 && y < 5;
  releaseBSTR(result);
  releaseBSTR(text);
  puts(right ? "right" : "wrong");
  return right ? 0 : 1;
}
