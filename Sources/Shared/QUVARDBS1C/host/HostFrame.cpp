#include "host/HostFrame.h"

std::wstring convToWstring(BSTR handle) { return quvard::takenIn(handle); }
