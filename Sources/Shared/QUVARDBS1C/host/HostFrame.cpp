#include "host/HostFrame.h"

std::wstring convToWstring(BSTR handle) {
  if (handle == nullptr) return {};
  return CW162W32(handle);
}
