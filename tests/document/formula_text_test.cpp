#include "document/formula_text.h"

#include <gmock/gmock.h>

namespace coltre {
namespace {

/// The pieces with their styles: subscripts in _{}.
std::string marked(const Pieces& pieces) {
    std::string text;
    for (const Piece& piece : pieces) {
        if (piece.style == Style::subscript) {
            text += "_{" + piece.text + "}";
        } else {
            text += piece.text;
        }
    }
    return text;
}

TEST(FormulaText, IsPrintedAsAnEngineerWritesIt) {
    for (const auto& [formula, printed] : std::vector<std::pair<const char*, const char*>>{
             {"1.39 * (1 + (as / 728)^2)", "1,39 · (1 + (a_{s}/728)²)"},
             {"0.5 * mu1_alfa1", "0,5 · µ_{1}(α_{1})"},
             {"mu1_alfa2_dimezzato * qsk", "µ_{1,½}(α_{2}) · q_{sk}"},
             {"min(3 / d_qs_2a, 3 * d_qs_2a)", "min(3/d_{2a}; 3 · d_{2a})"},
             {"qs1_intero + (qs2 - qs1_intero) / ls_intero * (ls_intero - b2)",
              "q_{s1,intero} + (q_{s2} − q_{s1,intero})/l_{s,intero} · (l_{s,intero} − b_{2})"},
             {"zona == 0 and as > 200", "zona = 0 e a_{s} > 200"},
             {"30 < alfa <= 60", "30 < α ≤ 60"},
             {"qs * b * sin(alfa * pi / 180)", "q_{s} · b · sen(α · π/180)"},
             {"0.273 * (1 - 0.5 * ln(0 - ln(1 - 1 / Tr)))", "0,273 · (1 − 0,5 · ln(−ln(1 − 1/T_{r})))"},
             {"1.5398124282997221 * (-0.0001234567) + 2e+20", "1,5398 · (−0,0001235) + 2e+20"},
             {"2 * R * cos(30 / 180 * pi)", "2 · R · cos(30/180 · π)"},
         })
        EXPECT_EQ(marked(formula_text(formula)), printed);
}

TEST(StepLine, SaysNothingTwice) {
    const Step step{.symbol = "mu1",
                    .formula = "0.8",
                    .numbers = "0.8",
                    .value = 0.8,
                    .condition = "0 <= alfa <= 30",
                    .quantity = quantities::coefficient};
    EXPECT_EQ(plain_text(step_line(step).formula), "µ1 = 0,8000");
    EXPECT_EQ(plain_text(step_line(step).remark), "0 ≤ α ≤ 30");
}

}  // namespace
}  // namespace coltre
