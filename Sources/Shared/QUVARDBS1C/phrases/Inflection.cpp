#include <cstdint>
#include <utility>

#include "host/Boundary.h"

namespace {

bool isSingular(int32_t count) { return count < 2; }

}  // namespace

std::wstring SingPlural(std::wstring singular, std::wstring plural, int32_t count) {
  return std::move(isSingular(count) ? singular : plural);
}

BSTR VB_SingPlural(BSTR singular, BSTR plural, int32_t count) {
  return SysAllocString16(isSingular(count) ? singular : plural);
}
