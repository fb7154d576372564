#include "drawings/drawing_parts.h"

#include <gmock/gmock.h>

#include <cmath>

namespace coltre {
namespace {

// A U of 100 x 100 with a notch of 20 x 60 from above: a diagonal may not cross the notch.
TEST(HatchLines, LeaveANotchFree) {
    const std::vector<Point> u{{0, 0}, {40, 0}, {40, 60}, {60, 60}, {60, 0}, {100, 0}, {100, 100}, {0, 100}};
    const auto pieces = hatch_lines(u, 10);
    ASSERT_FALSE(pieces.empty());
    for (const auto& [from, to] : pieces) {
        EXPECT_NEAR(from.x + from.y, to.x + to.y, 1e-9) << "at 45 degrees";
        const Point middle{(from.x + to.x) / 2, (from.y + to.y) / 2};
        EXPECT_FALSE(middle.x > 40.01 && middle.x < 59.99 && middle.y < 59.99) << middle.x << " " << middle.y;
    }
}

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
