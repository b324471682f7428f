#include <QUVARDBS1C.h>
#include <QUVARDCR1C.h>

#include <string>

int main() {
  const BSTR text = SysAllocString16(u" a:b ");
  const BSTR result = VB_RemoveColon(text);
  const bool right = std::u16string(result) == u" ab " &&
                     LocalAN(L"linear", L"Model", L"FR", 0, 0, 0) == L"Model linear";
  releaseBSTR(result);
  releaseBSTR(text);
  return right ? 0 : 1;
}
