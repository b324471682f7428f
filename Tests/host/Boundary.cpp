#include "host/Boundary.h"

#include "support/Expectations.h"

namespace {

// A number that would be narrowed does not cross: VB_StrLeft(BSTR, double) would not compile.
struct Core {
  template <typename... Texts>
  int32_t operator()(const Texts&...) const {
    return 0;
  }
};
template <typename... Arguments>
concept Crosses = requires(Arguments... arguments) {
  quvard::viaBuffer(Core(), arguments...);
};
static_assert(Crosses<BSTR, int32_t> && Crosses<BSTR, BSTR, HostBool>);
static_assert(!Crosses<BSTR, double> && !Crosses<BSTR, int64_t> && !Crosses<BSTR, BSTR, double> &&
              !Crosses<BSTR, BSTR, BSTR, uint32_t>);

}  // namespace

TEST(Boundary, EveryUnitPassesUnchanged) {
  EXPECT_GIVES(convToWstring, allUnits(), allUnits());
  EXPECT_GIVES(VB_StrLeft, allUnits(), allUnits(), -1);
}

TEST(Boundary, TextEndsAtItsFirstZeroUnit) {
  char16_t units[] = u"ab\0cd";
  EXPECT_EQ(convToWstring(units), L"ab");
  EXPECT_EQ(convToWstring(nullptr), L"");
  EXPECT_EQ(take(VB_StrConcat(units, units, nullptr, nullptr, nullptr, nullptr)), L"abab");
}
