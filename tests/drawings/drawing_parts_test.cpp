#include "drawings/drawing_parts.h"

#include <gmock/gmock.h>

namespace coltre {
namespace {

// By hand: a ridge of 45 degrees both sides and a slab of 10: the lower corner lies 10 / cos 45 = 14.142
// below the ridge, the ends 7.071 inwards and down.
TEST(SlabSection, HasTheSameThicknessOnBothSidesAndNoSpike) {
    const std::vector<Point> slab = slab_section({{0, 100}, {100, 0}, {200, 100}}, 10);
    ASSERT_EQ(slab.size(), 6U);
    EXPECT_NEAR(slab[4].x, 100, 1e-9);
    EXPECT_NEAR(slab[4].y, 14.142, 1e-3);
    EXPECT_NEAR(slab[5].x, 7.071, 1e-3);
    EXPECT_NEAR(slab[5].y, 107.071, 1e-3);
    // A sharp corner is cut short.
    EXPECT_LT(slab_section({{-1, 1000}, {0, 0}, {1, 1000}}, 10)[4].y, 40);
}

}  // namespace
}  // namespace coltre
