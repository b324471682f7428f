#include "host/Boundary.h"

#include "support/HostStrings.h"

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
  const B all(allUnits());
  EXPECT_EQ(convToWstring(all), allUnits());
  EXPECT_EQ(taken(VB_StrLeft(all, -1)), allUnits());
}

TEST(Boundary, TextEndsAtItsFirstZeroUnit) {
  char16_t units[] = u"ab\0cd";
  EXPECT_EQ(convToWstring(units), L"ab");
  EXPECT_EQ(convToWstring(nullptr), L"");
  EXPECT_EQ(taken(VB_StrConcat(units, units, nullptr, nullptr, nullptr, nullptr)), L"abab");
}

TEST(Boundary, TextsOfEveryLengthInPlaceAndOnTheHeap) {
  for (std::size_t size = 0; size < 300; ++size) {
    const Text text(size, L'x');
    const B handle(text);
    ASSERT_EQ(taken(VB_PStrP(handle)), L"(" + text + L")") << size;
    ASSERT_EQ(taken(VB_StrConcat(handle, B(u"a"), handle, handle, B(u""), B(u"b"))),
              text + L"a" + text + text + L"b")
        << size;
  }
}
