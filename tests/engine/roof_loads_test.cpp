#include "engine/roof_loads.h"

#include <gmock/gmock.h>

#include <tuple>
#include <utility>

namespace coltre {
namespace {

// By hand: up to qs = 3 the smaller k is 3d = qs, so qe = qs^3 / 3; above it is 3/d = 9 / qs, so qe = 3 qs.
TEST(OverhangLoad, TakesTheSmallerCoefficient) {
    EXPECT_NEAR(qe(1.2).value(), 0.576, 1e-12);
    EXPECT_NEAR(qe(2.7).value(), 6.561, 1e-12);
    EXPECT_NEAR(qe(3).value(), 9, 1e-12);
    EXPECT_NEAR(qe(3.3).value(), 9.9, 1e-12);
    EXPECT_NEAR(qe(4).value(), 12, 1e-12);
    EXPECT_EQ(qe(0).fault(), Fault::division_by_zero);
    EXPECT_EQ(qe(1e155).fault(), Fault::numeric_error);
}

TEST(TwoPitches, MirroredRoofHasMirroredLoads) {
    CalculationObserver nobody;
    for (const auto& [left, right] : {std::pair{0.0, 59.0}, {20.0, 45.0}, {30.0, 30.25}}) {
        ProgramCells a;
        a.qsk = 1.7;
        ProgramCells b = a;
        calculate_roof(a, {RoofFamily::two_pitches, left, right}, nobody);
        calculate_roof(b, {RoofFamily::two_pitches, right, left}, nobody);
        EXPECT_EQ(std::tie(a.qs_2a, a.qs_2b, a.qe_2a, a.qe_2b), std::tie(b.qs_2c, b.qs_2d, b.qe_2c, b.qe_2d));
        EXPECT_EQ(std::tie(a.qs_2c, a.qs_2d, a.qe_2c, a.qe_2d), std::tie(b.qs_2a, b.qs_2b, b.qe_2a, b.qe_2b));
        EXPECT_GT(a.qs_2a, a.qs_2c);
    }
}

}  // namespace
}  // namespace coltre
