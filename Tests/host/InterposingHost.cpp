// A host program whose own functions bear names of the library and are found first by the loader.
// The library's calls of these names must still reach the library.
#include <dlfcn.h>

#include <cstdio>
#include <string>

#include "QUVARDBS1C.h"
#include "QUVARDCR1C.h"

namespace {
int strayCalls = 0;

std::wstring stray() {
  ++strayCalls;
  return L"the host's own";
}
}  // namespace

std::wstring convToWstring(BSTR) { return stray(); }
std::wstring StrLeft(std::wstring, int32_t) { return stray(); }
std::wstring StrRight(std::wstring, int32_t) { return stray(); }
std::wstring StrConcat(std::wstring, std::wstring, std::wstring, std::wstring, std::wstring,
                       std::wstring) {
  return stray();
}
std::wstring StrLRTrim(std::wstring) { return stray(); }
std::wstring LocalAN(std::wstring, std::wstring, std::wstring, HostBool, HostBool, HostBool) {
  return stray();
}
std::wstring LowerFirst(std::wstring, std::wstring, HostBool) { return stray(); }
std::wstring UpperFirst(std::wstring) { return stray(); }
std::wstring RemoveChar(std::wstring, std::wstring) { return stray(); }
std::wstring RemoveNonNumericChar(std::wstring) { return stray(); }
std::wstring cStrBetweenChrAndChr(std::wstring, std::wstring, std::wstring) { return stray(); }
std::wstring SpStrSp(std::wstring) { return stray(); }
std::wstring PStrP(std::wstring) { return stray(); }
std::wstring QUVARDHTMLProcessor(std::wstring) { return stray(); }
std::wstring Replace(std::wstring, std::wstring, std::wstring) { return stray(); }
std::wstring Replace(std::wstring, const wchar_t*, const wchar_t*) { return stray(); }
HostBool CommonChar(std::wstring, std::wstring) { return ++strayCalls; }
int32_t cChrCount(std::wstring, std::wstring) { return ++strayCalls; }
double sqr(double) noexcept { return ++strayCalls; }
double Max(double, double) noexcept { return ++strayCalls; }
double Cnk(double, double) noexcept { return ++strayCalls; }
double LCD2(double, double) noexcept { return ++strayCalls; }
HostBool IsLongP(double, double) noexcept { return ++strayCalls; }
std::wstring DecimalFormat(int32_t) { return stray(); }
std::wstring OutputFormat(double) { return stray(); }
std::wstring OptimalFormat(double, int32_t, HostBool, HostBool) { return stray(); }

namespace {

void* library = nullptr;

template <typename Function>
Function* routine(const char* name) {
  auto* const found = reinterpret_cast<Function*>(dlsym(library, name));
  if (found == nullptr) std::fprintf(stderr, "%s is missing\n", name);
  return found;
}

#define ROUTINE(name) routine<decltype(name)>(#name)

bool isText(BSTR result, const char16_t* expected) {
  const bool equal = std::u16string(result) == expected;
  ROUTINE(releaseBSTR)(result);
  return equal;
}

}  // namespace

int main(int, char** arguments) {
  library = dlopen(arguments[1], RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) {
    std::fprintf(stderr, "%s\n", dlerror());
    return 2;
  }
  char16_t adjective[] = u"linear", noun[] = u"Model", language[] = u"US", text[] = u" a<CM>7 ";
  char16_t less[] = u"<", comma[] = u"CM", more[] = u">", digits[] = u"12";
  const bool right =
      isText(ROUTINE(VB_LocalAN)(adjective, noun, language), u"Linear model") &&
      isText(ROUTINE(VB_LocalAN2)(adjective, noun, language, -1, -1, 0), u"linear model") &&
      isText(ROUTINE(VB_LowerFirst)(noun, language, 0), u"model") &&
      isText(ROUTINE(VB_UpperFirst)(adjective), u"Linear") &&
      isText(ROUTINE(VB_StrLRTrim)(text), u"a<CM>7") &&
      isText(ROUTINE(VB_StrLeft)(noun, 2), u"Mo") && isText(ROUTINE(VB_StrRight)(noun, 2), u"el") &&
      isText(ROUTINE(VB_RemoveChar)(text, less), u" aCM>7 ") &&
      isText(ROUTINE(VB_RemoveNonNumericChar)(text), u"7") &&
      isText(ROUTINE(StrBetweenChrAndChr)(text, less, more), u"CM") &&
      isText(ROUTINE(VB_SpStrSp)(noun), u" Model ") &&
      isText(ROUTINE(VB_PStrP)(noun), u"(Model)") &&
      isText(ROUTINE(VB_QUVARDHTMLProcessor)(text), u" a,7 ") &&
      isText(ROUTINE(VB_Replace2)(text, comma, digits, less, more), u" a>12>7 ") &&
      ROUTINE(VB_CommonChar)(text, less) == -1 && ROUTINE(ChrCount)(text, comma) == 1 &&
      isText(ROUTINE(Cpp_DecimalFormat)(1), u"0.0") &&
      isText(ROUTINE(VB_OutputFormat)(1.0), u"0") &&
      isText(ROUTINE(VB_OptimalFormat)(1.5, 2, 0, 0), u"0.00") && ROUTINE(ASin)(0.6) < 0.7 &&
      ROUTINE(LogExpAPlusExpB)(-9, -9) < 0 && ROUTINE(SumCnk)(4, 0, 4) == 16 &&
      ROUTINE(LCDDbl)(6, 4) == 2 && ROUTINE(IsLong)(0.5) == 0;
  std::printf("%s, %d stray calls\n", right ? "right" : "wrong", strayCalls);
  return right && strayCalls == 0 ? 0 : 1;
}
