#include "QUVARDBS1C.h"
#include "strings/PlatformCase.h"

std::wstring StrLCase(std::wstring s) {
  for (wchar_t& unit : s) unit = quvard::mapCase(unit, quvard::LetterCase::lower);
  return s;
}
