#include "support/Expectations.h"

namespace {

// Each row has a value; what it is away from zero and closest, with half set and not; and down and
// up, with half set and not.
template <std::size_t... columns>
void expectSideBySide(const double (&... rows)[columns]) {
  const auto expectRow = [](const double(&row)[9]) {
    const double v = row[0];
    const std::pair<const char*, double> results[] = {
        {"Int05 with half", Int05(v, -1)},          {"Int05", Int05(v, 0)},
        {"Int05c with half", Int05c(v, -1)},        {"Int05c", Int05c(v, 0)},
        {"Int05LU down, half", Int05LU(v, -1, -1)}, {"Int05LU up, half", Int05LU(v, -1, 0)},
        {"Int05LU down", Int05LU(v, 0, -1)},        {"Int05LU up", Int05LU(v, 0, 0)}};
    const double* expected = row;
    for (const auto& [name, result] : results) {
      const auto give = [value = result](double) { return value; };
      EXPECT_PRED_FORMAT1(resultItself, gives(name, give, *++expected, v));
    }
  };
  (expectRow(rows), ...);
}

TEST(Rounding, SideBySide) {
  expectSideBySide(
      {2.1, 2.5, 3, 2, 2, 2, 2.5, 2, 3}, {2.4, 2.5, 3, 2.5, 2, 2, 2.5, 2, 3},
      {2.6, 3, 3, 2.5, 3, 2.5, 3, 2, 3}, {-2.1, -2.5, -3, -2, -2, -2.5, -2, -3, -2},
      {-2.5, -3, -3, -2.5, -2, -2.5, -2.5, -3, -2}, {0.3, 0.5, 1, 0.5, 0, 0, 0.5, 0, 1},
      {-0.3, -0.5, -1, -0.5, -0.0, -0.5, 0, -1, 0}, {-0.0, 0, 0, 0, 0, -0.0, -0.0, -0.0, -0.0},
      {16.5, 17, 17, 16.5, 17, 16.5, 16.5, 16, 17}, {-1e-20, -0.5, -1, -0.0, -0.0, -0.5, 1, -1, 1},
      {-kInf, kNaN, kNaN, kNaN, kNaN, -kInf, -kInf, -kInf, -kInf},
      {kNaN, kNaN, kNaN, kNaN, kNaN, kNaN, kNaN, kNaN, kNaN},
      {2.4999999999995, 3, 3, 2.5, 2, 2, 2.5, 2, 3},
      {2.4999999999985, 2.5, 3, 2.5, 2, 2, 2.5, 2, 3},
      {2.2500000000009, 2.5, 3, 2, 2, 2, 2.5, 2, 3}, {2.250000000001, 2.5, 3, 2.5, 2, 2, 2.5, 2, 3},
      {2.7499999999991, 3, 3, 3, 3, 2.5, 3, 2, 3}, {2.749999999999, 3, 3, 2.5, 3, 2.5, 3, 2, 3},
      {above(2.5), 3, 3, 2.5, 2, 2.5, 3, 2, 3}, {2.500000000000001, 3, 3, 2.5, 3, 2.5, 3, 2, 3},
      {below(1.0), 1.5, 2, 1, 1, 0.5, 2, 0, 2}, {below(3.0), 3, 3, 3, 3, 2.5, 3, 2, 3},
      {below(0x1p51), 0x1p51 + 1, 0x1p51 + 1, 0x1p51, 0x1p51, 0x1p51 - 0.5, 0x1p51 + 1, 0x1p51 - 1,
       0x1p51 + 1});
  const double big = 2147483647.0;
  expectSideBySide(
      {big - 0.75, big - 0.5, big, big - 1, big - 1, big - 1, big - 0.5, big - 1, big},
      {big + 0.25, big + 1, big + 1, big, big, big, big + 0.5, big, big + 1},
      {big + 0.5, big + 1, big + 1, big + 0.5, big + 1, big + 0.5, big + 0.5, big, big + 1});
}

}  // namespace
