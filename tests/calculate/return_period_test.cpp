#include "calculate/return_period.h"

#include <gmock/gmock.h>

#include <optional>
#include <utility>

#include "tests/support/fake_doors.h"

namespace coltre {
namespace {

TEST(ReturnPeriod, CellTakesEvenWhatIsRejected) {
    ProgramCells cells;
    FakeDoors fake;
    EXPECT_EQ(confirm_return_period(" 75.5 ", cells, fake).OutputPerRit, "75.5");
    EXPECT_EQ(cells.return_period, 75.5);
    const double factor = cells.return_period_factor;
    EXPECT_NEAR(factor, 0.8623, 5e-5);  // 0.273 (1 + 0.5 x 4.3175)
    EXPECT_THAT(fake.shown, testing::IsEmpty());
    for (const auto& [text, Tr] : {std::pair{"-3", -3.0}, {"x", 0.0}, {"1", 1.0}, {"1e17", 1e17}}) {
        EXPECT_EQ(confirm_return_period(text, cells, fake).OutputPerRit, std::nullopt);
        EXPECT_EQ(cells.return_period, Tr);
        EXPECT_EQ(cells.return_period_factor, factor);
    }
    ASSERT_EQ(fake.shown.size(), 4U);
    EXPECT_EQ(fake.shown[1],
              (Message{Icon::error, "Coltre", "Il Periodo di Ritorno deve essere un numero maggiore di 0."}));
    EXPECT_EQ(confirm_return_period("1e309", cells, fake).fault, Fault::numeric_error);
    EXPECT_EQ(cells.return_period, 1e17) << "no number was read";
}

}  // namespace
}  // namespace coltre
