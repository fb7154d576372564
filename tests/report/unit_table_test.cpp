#include "report/unit_table.h"

#include <gmock/gmock.h>

#include <cmath>

#include "text/characters.h"

namespace coltre {
namespace {

/// "(cu_a_b)" -> "(cu_b_a)", in lower case.
std::string way_back(std::string_view command) {
    const std::string units = lower_case(command.substr(4, command.size() - 5));
    const std::size_t between = units.find('_');
    return "(cu_" + units.substr(between + 1) + "_" + units.substr(0, between) + ")";
}

TEST(UnitTable, EachCommandIsFoundInAnyLetterCase) {
    EXPECT_EQ(unit_table().size(), 300U);
    std::map<std::string, const UnitCommand*> first;
    std::set<std::string> twice;
    for (const UnitCommand& row : unit_table()) {
        EXPECT_NE(row.multiplier, 0) << row.command;
        const std::string command = lower_case(row.command);
        if (!first.emplace(command, &row).second) twice.insert(command);
        for (const std::string& written : {command, std::string(row.command), "(DV_04)" + command + "(SC_|)"})
            EXPECT_EQ(find_unit_command(written), first[command]) << written;
    }
    EXPECT_THAT(twice, testing::ElementsAre("(cu_dan/cm3_tf/m3)", "(cu_kgf/cm3_tf/m3)", "(cu_tf/m3_dan/cm3)",
                                            "(cu_tf/m3_kgf/cm3)"));
}

TEST(UnitTable, OfSeveralCommandsTheLowestRowWins) {
    EXPECT_EQ(find_unit_command("(cu_W/mK_W/cmK)(CU_M_CM)(cu_kn_kgf)"), unit_table().data());
    EXPECT_EQ(find_unit_command("(cu_x_(cu_kn_kgf)(cu_m_cm"), find_unit_command("(cu_kn_kgf)"));
    for (const char* unknown : {"", "(cu_", "(cu_)", "(cu_m_cm", "cu_m_cm)", "(cu_m_cmm)", "(cu_ m_cm)"})
        EXPECT_EQ(find_unit_command(unknown), nullptr) << unknown;
}

// There and back is 1, and the decimals come back too, but for the rows that are known to be irregular.
TEST(UnitTable, EveryCommandThereAndBack) {
    int no_way_back = 0;
    std::set<std::string> irregular;
    for (const UnitCommand& row : unit_table()) {
        const std::string command = lower_case(row.command);
        const UnitCommand* const back = find_unit_command(way_back(row.command));
        if (back == nullptr) {
            ++no_way_back;
        } else if (std::fabs(row.multiplier * back->multiplier - 1) > 1e-5 ||
                   row.decimal_shift != -back->decimal_shift) {
            irregular.insert(command);
        }
    }
    EXPECT_EQ(no_way_back, 6) << "two of cm4, and four from pascal to square metres";
    EXPECT_THAT(irregular,
                testing::ElementsAre("(cu_cm/s_ft/s)", "(cu_dan/cm2_mn/m2)", "(cu_dan/cm2_mpa)",
                                     "(cu_ft/s_cm/s)", "(cu_kgf/cm2_mn/m2)", "(cu_kgf/cm2_mpa)",
                                     "(cu_kgf/cm_kn/mm)", "(cu_kn/mm_kgf/cm)", "(cu_mn/m2_dan/cm2)",
                                     "(cu_mn/m2_kgf/cm2)", "(cu_mpa_dan/cm2)", "(cu_mpa_kgf/cm2)"));
}

}  // namespace
}  // namespace coltre
