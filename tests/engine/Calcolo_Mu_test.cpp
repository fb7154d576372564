#include "engine/Calcolo_Mu.h"

#include <gmock/gmock.h>

namespace coltre {
namespace {

// By hand: mu1 = 0.8 to 30 degrees, then 0.8 (60 - alfa) / 30, 0 above 60; mu2 = 0.8 + 0.8 alfa / 30 to 30
// degrees, 1.6 to 60, 0 above.
TEST(ShapeCoefficients, ChangeTheirBranchJustAboveTheLimit) {
    struct Case {
        double alfa, mu1, mu2;
    };
    for (const Case& c : {
             Case{0, 0.8, 0.8},
             Case{15, 0.8, 1.2},
             Case{29.97, 0.8, 1.5992},
             Case{30, 0.8, 1.6},
             Case{30.03, 0.7992, 1.6},
             Case{45, 0.4, 1.6},
             Case{59.97, 0.0008, 1.6},
             Case{60, 0, 1.6},
             Case{60.03, 0, 0},
             Case{90, 0, 0},
         }) {
        ProgramCells cells;
        mu1(cells, c.alfa);
        mu2(cells, c.alfa);
        EXPECT_NEAR(cells.mu1, c.mu1, 1e-12) << c.alfa;
        EXPECT_NEAR(cells.mu2, c.mu2, 1e-12) << c.alfa;
    }
}

TEST(ShapeCoefficients, NegativePitchLeavesTheCell) {
    ProgramCells cells;
    mu1(cells, 45);
    mu2(cells, 15);
    mu1(cells, -5);
    mu2(cells, -0.01);
    EXPECT_NEAR(cells.mu1, 0.4, 1e-12);
    EXPECT_NEAR(cells.mu2, 1.2, 1e-12);
}

TEST(ShapeCoefficients, Mu1NeverRisesWithTheSlope) {
    ProgramCells cells;
    double before = 0.8;
    for (double alfa = 0; alfa <= 90; alfa += 0.0625, before = cells.mu1) {
        mu1(cells, alfa);
        EXPECT_LE(cells.mu1, before) << alfa;
    }
}

}  // namespace
}  // namespace coltre
