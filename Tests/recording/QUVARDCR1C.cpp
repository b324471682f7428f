// A QUVARDCR1C that records each service call and each host string. Each call overwrites the thread
// buffer, so that a routine that reads the buffer too late fails.
#include "QUVARDCR1C.h"

#include <algorithm>
#include <stdexcept>

#include "recording/Recording.h"

Recording recording;

namespace {

std::wstring threadBuffer;

// Records a call and returns the text as wide text.
template <typename Unit>
const std::wstring& record(const char* service, const std::basic_string<Unit>& text) {
  std::fill(threadBuffer.begin(), threadBuffer.end(), L'\xDEAD');
  return recording.calls.emplace_back(service, std::wstring(text.begin(), text.end())).second;
}

// Null is an empty text.
std::u16string orEmpty(const char16_t* units) { return units == nullptr ? u"" : units; }

BSTR makeHostString(const std::wstring& text) {
  const BSTR handle = new char16_t[text.size() + 1]();
  std::copy(text.begin(), text.end(), handle);
  return *recording.alive.insert(handle).first;
}

}  // namespace

BSTR SysAllocString16(const char16_t* units) {
  return makeHostString(record(__func__, orEmpty(units)));
}
BSTR SysAllocString2(const wchar_t* units) {
  return makeHostString(record(__func__, std::wstring(units)));
}
BSTR convertWstringToBSTR(std::wstring text) { return makeHostString(record(__func__, text)); }
std::wstring convertBSTRtoWstring(BSTR& handle) { return record(__func__, orEmpty(handle)); }
std::size_t wcslen16(const char16_t* units) {
  return record(__func__, std::u16string(units)).size();
}
wchar_t* CW162W32(BSTR handle) {
  return (threadBuffer = record(__func__, std::u16string(handle))).data();
}

void releaseBSTR(BSTR handle) {
  if (handle == nullptr) return;
  if (recording.alive.erase(handle) == 0) throw std::logic_error("no live host string");
  delete[] handle;
}
