// A host program whose own functions bear names of the library and are found first by the loader.
// The library's calls of these names must still reach the library.
#include <cstdio>

#include "support/HostRoutines.h"

namespace {
int strayCalls = 0;
Text stray(const char* name) {
  std::printf("The library calls the host's %s.\n", name);
  return std::to_wstring(++strayCalls);
}
}  // namespace

Text convToWstring(BSTR) { return stray(__func__); }
Text StrLeft(Text, int32_t) { return stray(__func__); }
Text StrLRTrim(Text) { return stray(__func__); }
Text LocalAN(Text, Text, Text, HostBool, HostBool, HostBool) { return stray(__func__); }
Text cStrBetweenChrAndChr(Text, Text, Text) { return stray(__func__); }
Text QUVARDHTMLProcessor(Text) { return stray(__func__); }
Text Replace(Text, Text, Text) { return stray(__func__); }
Text Replace(Text, const wchar_t*, const wchar_t*) { return stray(__func__); }
HostBool CommonChar(Text, Text) { return stray(__func__), 1; }
double sqr(double) noexcept { return stray(__func__), 1; }
double Cnk(double, double) noexcept { return stray(__func__), 1; }
Text DecimalFormat(int32_t) { return stray(__func__); }

int main() {
  const Strings texts({L" a<CM>7 ", L" a<CM>7 ", L"US", L" a<CM>7 ", L" a<CM>7 ", L" a<CM>7 "});
  for (const HostRoutine& routine : hostRoutines()) {
    if (routine.path != &kToWideText) routine.call(texts.handles());  // the host has its own
  }
  ASin(0.6);
  SumCnk(4, 0, 4);
  return strayCalls == 0 ? 0 : 1;
}
