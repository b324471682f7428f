// A sibling library that records each service call and each host string, and overwrites the wide
// buffer at the next call of any service.
#include "QUVARDCR1C.h"

#include <algorithm>
#include <stdexcept>

#include "recording/Recording.h"

Recording recording;

namespace {

std::wstring wideBuffer;

template <typename Text>
void record(const std::string& service, const Text& text) {
  std::fill(wideBuffer.begin(), wideBuffer.end(), L'\xDEAD');
  std::string call = service + "(";
  for (const auto unit : text) call.push_back(unit < 0x80 ? static_cast<char>(unit) : '?');
  recording.calls.push_back(call + ")");
}

template <typename Text>
BSTR made(const std::string& service, const Text& text) {
  record(service, text);
  const BSTR handle = new char16_t[text.size() + 1]();
  std::copy(text.begin(), text.end(), handle);
  return *recording.alive.insert(handle).first;
}

std::u16string textOf(const char16_t* units) { return units == nullptr ? u"" : units; }

}  // namespace

BSTR SysAllocString16(const char16_t* units) { return made("SysAllocString16", textOf(units)); }

std::size_t wcslen16(const char16_t* units) {
  record("wcslen16", std::u16string(units));
  return std::char_traits<char16_t>::length(units);
}

void releaseBSTR(BSTR handle) {
  if (handle == nullptr) return;
  if (recording.alive.erase(handle) == 0) throw std::logic_error("no live host string");
  delete[] handle;
}

wchar_t* CW162W32(BSTR handle) {
  const std::u16string text = handle;
  record("CW162W32", text);
  wideBuffer.assign(text.begin(), text.end());
  return wideBuffer.data();
}

BSTR SysAllocString2(const wchar_t* units) { return made("SysAllocString2", std::wstring(units)); }

std::wstring convertBSTRtoWstring(BSTR& handle) {
  const std::u16string text = textOf(handle);
  record("convertBSTRtoWstring", text);
  return {text.begin(), text.end()};
}

BSTR convertWstringToBSTR(std::wstring text) { return made("convertWstringToBSTR", text); }
