#include "host/Boundary.h"

std::wstring convToWstring(BSTR handle) { return std::wstring(quvard::wideText(handle)); }
