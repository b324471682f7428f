// A host program whose own functions bear names of the library and are found first by the loader.
// The library's calls of these names must still reach the library.
#include <cstdio>

#include "support/HostRoutines.h"

namespace {
int strayCalls = 0;
Text stray() { return std::to_wstring(++strayCalls); }
}  // namespace

Text convToWstring(BSTR) { return stray(); }
Text StrLeft(Text, int32_t) { return stray(); }
Text StrLRTrim(Text) { return stray(); }
Text LocalAN(Text, Text, Text, HostBool, HostBool, HostBool) { return stray(); }
Text cStrBetweenChrAndChr(Text, Text, Text) { return stray(); }
Text QUVARDHTMLProcessor(Text) { return stray(); }
Text Replace(Text, Text, Text) { return stray(); }
Text Replace(Text, const wchar_t*, const wchar_t*) { return stray(); }
HostBool CommonChar(Text, Text) { return ++strayCalls; }
double sqr(double) noexcept { return ++strayCalls; }
double Cnk(double, double) noexcept { return ++strayCalls; }
Text DecimalFormat(int32_t) { return stray(); }

int main() {
  const B text(u" a<CM>7 "), language(u"US");
  const BSTR handles[] = {text, text, language, text, text, text};
  for (const HostRoutine& routine : hostRoutines()) routine.call(handles);
  ASin(0.6);
  SumCnk(4, 0, 4);
  std::printf("%d stray calls\n", strayCalls);
  return strayCalls == 0 ? 0 : 1;
}
