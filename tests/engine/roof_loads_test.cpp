#include "engine/roof_loads.h"

#include <gmock/gmock.h>

#include "engine/Calcolo_Mu.h"

namespace coltre {
namespace {

TEST(ShapeCoefficients, Mu1NeverRisesWithTheSlope) {
    for (double alfa = 0.0625; alfa <= 90; alfa += 0.0625)
        EXPECT_LE(mu1(alfa, 9.0), mu1(alfa - 0.0625, 9.0)) << alfa;
}

TEST(TwoPitches, MirroredRoofHasMirroredLoads) {
    for (const auto& [left, right] : {std::pair{0.0, 59.0}, {20.0, 45.0}, {30.0, 30.25}}) {
        ProgramCells a;
        a.qsk = 1.7;
        ProgramCells b = a;
        calculate(a, {.kind = Kind::two_pitches, .alfa1 = left, .alfa2 = right});
        calculate(b, {.kind = Kind::two_pitches, .alfa1 = right, .alfa2 = left});
        EXPECT_EQ(std::tie(a.qs_2a, a.qs_2b, a.qe_2a, a.qe_2b), std::tie(b.qs_2c, b.qs_2d, b.qe_2c, b.qe_2d));
        EXPECT_EQ(std::tie(a.qs_2c, a.qs_2d, a.qe_2c, a.qe_2d), std::tie(b.qs_2a, b.qs_2b, b.qe_2a, b.qe_2b));
        EXPECT_GT(a.qs_2a, a.qs_2c);
    }
}

}  // namespace
}  // namespace coltre
