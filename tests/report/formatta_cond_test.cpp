#include "report/formatta_cond.h"

#include <gmock/gmock.h>

namespace coltre {
namespace {

using namespace std::string_view_literals;

// In the order of the steps: scale factor, unit, digits, decimals, fill, field, point, separator. By hand.
TEST(Formatta, DirectivesInTheOrderOfTheirSteps) {
    struct Case {
        double value;
        const char* directives;
        double factor;
        std::string_view text;
    };
    for (const Case& c : {
             Case{-0.5, "", 1, "-.5"},
             Case{1.5, "", 2, "3"},
             Case{0.012345, "(dv_04)", 100, "1.23"},  // two decimals fewer
             Case{0.2, "(dv_01)(zr_0)", 4.99, "1.0"},
             Case{0.2, "(dv_01)(zr_0)", 5, "1."},  // one fewer from here on
             Case{4e6, "(dv_01)(zr_0)", 0.000001, "4.0"},
             Case{4e6, "(dv_01)(zr_0)", 0.000002, "8.0000000"},  // shift 6
             Case{1.23456, "(CU_m_CM)(fd_08)(DV_04)", 1, "  123.46"},
             Case{1, "(cu_mm_m)(dv_04)(zr_0)", 1, ".0010000"},
             Case{1, "(dv_04)(cu_mn_kgf)", 1, "101972."},        // no fewer than 0 decimals
             Case{150, "(cu_kgf_KGF)(dv_99)", 0.01, "1.5"},      // one unit twice: neither moves the decimals
             Case{1234.5, "(cs_031)", 1, "1230."},               // two characters
             Case{98765, "(cs_02)(cs_04)", 1, "99000."},         // the first counts
             Case{1.23456, "(dv_4)(sc_|)(sc_;)", 1, "1.2346;"},  // seven characters go, "(" among them
             Case{1.5, "(sc_(dv_10", 1, "1.5(cd_10"},
             Case{1.23456, "(dv_04)(cd_01)", 1, "1.2346"},
             Case{2.5, "(dv_00)", 1, "2."},   // to the even neighbour
             Case{1.26, "(CD_xx)", 1, "1."},  // no number is 0
             Case{1.5, "(cd_03)(zr_°)(fd_06)", 1, " 1.5°°"},
             Case{1.5, "(cd_03)(zr_)", 1, "1.5))"},
             Case{12.5, "(fd_04)", 1, "12.5"},
             Case{12.34567, "(fd_05)", 1, "12.35"},
             Case{12.25, "(fd_04)", 1, "12.3"},         // a picture rounds half away from zero
             Case{12.30001, "(fd_05)", 1, "12.3\0"sv},  // no fill was chosen
             Case{12.30001, "(cd_05)(fd_05)", 1, "12.3 "},
             Case{12.6, "(fd_02)", 1, "13"},
             Case{123456789, "(FD_03)(sc_|)", 1, "***|"},
             Case{2e20, "(fd_08)(sc_|)", 1, "   .2E21|"},
             Case{123456789, "(fd_08)", 1, ".12346E9"},
             Case{1.26e-7, "(fd_05)", 1, ".1E-6"},
             Case{2e20, "(fd_04)(sc_|)", 1, "****|"},
             Case{1.5, "(fs_10)(sc_|)", 1, "1.5       |"},
             Case{1.5, "(fd_06)(fs_10)", 1, "1.5   "},
             Case{1.5, "(cd_02)(zr_e)(fd_06)", 1, " .15E1"},  // 1.5e would have fitted
             Case{3, "(np_0)", 1, "3."},
             Case{123, "(fd_04)(np_1)", 1, " 123"},
             Case{3, "(fd_05)(cd_00)(np_1)", 1, "   3 "},
             Case{1.5, "(sc_ kN/m² )", 1, "1.5 kN/m² "},
             Case{1.5, "(sc_)(sc_|)", 1, "1.5"},
             Case{1.5, "(sc_|", 1, "1.5"},
             Case{1.5, "x(Fd_ 6)y(cD_02)z", 1, "  1.5 "},
         }) {
        Messages messages;
        EXPECT_EQ(formatta(c.value, c.directives, c.factor, messages), c.text) << c.directives;
        EXPECT_THAT(messages, testing::IsEmpty()) << c.directives;
    }
}

// Of several errors the first step's counts, wherever it stands.
TEST(Formatta, WrongDirectivesGiveNoTextAndOverflowsGiveNothing) {
    const std::string unit = "Stringa di conversione unità di misura non riconosciuta.";
    struct Case {
        double value;
        const char* directives;
        std::vector<std::string> errors;
        std::optional<std::string> text = "";
        double factor = 1;
    };
    for (const Case& c : std::vector<Case>{
             {1.5, "(cu_xx_yy)(dv_04)(fd_06)", {unit}, "1.5   "},
             {1.5, "(cu_xx)", {unit}, "1.5"},
             {1.5, "(dv_-1)(cs_00)", {"comando (cs_nn) errato."}},
             {1.5, "(cd_-1)(dv_-1)", {"comando (dv_nn) errato (2)."}},
             {1.5, "(fd_01)(dv_99)(cu_mm_cm)", {"comando (dv_nn) errato (1)."}},
             {1.5, "(fd_01)(cd_-1)", {"comando (cd_nn) errato."}},
             {1.5, "(fd_01)(sc_|)", {"comando (fd_nn) o (fs_nn) errato."}},
             {1.5, "(fs_", {"comando (fd_nn) o (fs_nn) errato."}},
             {1.5, "(fs_xx)(cu_m_m", {unit, "comando (fd_nn) o (fs_nn) errato."}},
             {1e308, "", {}, std::nullopt, 10},
             {1e308, "(cs_00)(cu_m_cm)", {}, std::nullopt},
             {-1.7e308, "(cu_xx_yy)(cs_01)(fd_01)", {unit}, std::nullopt},
         }) {
        Messages messages;
        EXPECT_EQ(formatta(c.value, c.directives, c.factor, messages), c.text) << c.directives;
        Messages expected;
        for (const std::string& error : c.errors)
            expected.push_back({Icon::error, "Coltre", error});
        EXPECT_EQ(messages, expected) << c.directives;
    }
}

}  // namespace
}  // namespace coltre
