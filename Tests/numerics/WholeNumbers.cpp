#include "support/Expectations.h"

namespace {

TEST(WholeNumbers, IsLong) {
  expectRows("IsLong", IsLong, {3.0, -1}, {3.0000000000009, -1}, {-2.9999999999991, -1},
             {1e-12, -1}, {kInf, -1}, {kNaN, -1}, {-0.0, -1}, {3.0000000000011, 0},
             {-3.0000000000011, 0}, {2.9999999999989, 0}, {above(1e-12), 0}, {0.5, 0});
  expectRows("IsLongP", IsLongP, {3.0, 0.0, -1}, {above(3.0), 0.0, 0}, {kTiny, 0.0, 0},
             {2.75, 0.25, -1}, {2.25, 0.25, -1}, {2.75, below(0.25), 0}, {2.25, below(0.25), 0},
             {-2.5, 0.5, -1}, {2.5, below(0.5), 0}, {kNaN, -1, -1}, {kInf, -1, 0}, {3, -kTiny, 0},
             {2.5, kNaN, -1});
}

TEST(WholeNumbers, IsEven) {
  expectRows("IsEven", IsEven, {4, -1}, {-0.0, -1}, {-2, -1}, {1e300, -1}, {0x1p53, -1},
             {4e-16, -1}, {below(0x1p-51), -1}, {3, 0}, {-3, 0}, {2.5, 0}, {0.5, 0},
             {above(2.0), 0}, {0x1p-51, 0}, {-1e-16, 0}, {-kTiny, -1}, {below(-kTiny), 0},
             {0x1p53 - 1, 0}, {kInf, 0}, {-kInf, 0}, {kNaN, 0});
  expectRows("IsEvenLng", IsEvenLng, {kLowest, -1}, {kHighest, 0}, {0, -1}, {-1, 0}, {-6, -1},
             {7, 0});
}

}  // namespace
