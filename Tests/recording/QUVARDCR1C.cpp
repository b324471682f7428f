// A sibling library that records each service call and each host string, and overwrites the wide
// buffer at the next call of any service.
#include "QUVARDCR1C.h"

#include <algorithm>
#include <memory>
#include <stdexcept>

#include "recording/Recording.h"

namespace {

std::wstring wideBuffer;

template <typename Text>
void record(const std::string& service, const Text& text) {
  std::fill(wideBuffer.begin(), wideBuffer.end(), L'\xDEAD');
  std::string call = service + "(";
  for (const auto unit : text) call.push_back(unit < 0x80 ? static_cast<char>(unit) : '?');
  recording().calls.push_back(call + ")");
}

BSTR made(const std::u16string& text) {
  std::unique_ptr<char16_t[]> units(new char16_t[text.size() + 1]);
  std::copy_n(text.c_str(), text.size() + 1, units.get());
  recording().alive.insert(units.get());
  return units.release();
}

}  // namespace

Recording& recording() {
  static Recording recording;
  return recording;
}

BSTR SysAllocString16(const char16_t* units) {
  const std::u16string text = units == nullptr ? u"" : units;
  record("SysAllocString16", text);
  return made(text);
}

std::size_t wcslen16(const char16_t* units) {
  record("wcslen16", std::u16string(units));
  return std::char_traits<char16_t>::length(units);
}

void releaseBSTR(BSTR handle) {
  if (handle == nullptr) return;
  if (recording().alive.erase(handle) == 0) throw std::logic_error("no live host string");
  delete[] handle;
}

wchar_t* CW162W32(BSTR handle) {
  const std::u16string text = handle;
  record("CW162W32", text);
  wideBuffer.assign(text.begin(), text.end());
  return wideBuffer.data();
}

BSTR SysAllocString2(const wchar_t* units) {
  const std::wstring text = units;
  record("SysAllocString2", text);
  return made({text.begin(), text.end()});
}

std::wstring convertBSTRtoWstring(BSTR& handle) {
  const std::u16string text = handle == nullptr ? u"" : handle;
  record("convertBSTRtoWstring", text);
  return {text.begin(), text.end()};
}

BSTR convertWstringToBSTR(std::wstring text) {
  record("convertWstringToBSTR", text);
  return made({text.begin(), text.end()});
}
