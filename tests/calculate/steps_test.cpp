#include "tests/support/steps.h"

#include <gmock/gmock.h>

#include <fstream>
#include <random>

#include "calculate/return_period.h"

namespace coltre {
namespace {

/// The text of a member of a request line; empty if it has none.
std::string member(const std::string& line, std::string_view key) {
    const std::string name = "\"" + std::string(key) + "\": ";
    const std::size_t start = line.find(name);
    if (start == std::string::npos) return {};
    std::string text = line.substr(start + name.size());
    text = text.front() == '"' ? text.substr(1, text.find('"', 1) - 1)
                               : text.substr(0, text.find_first_of(",}"));
    return text;
}

TEST(Steps, SayHowANumberCameAbout) {
    struct Case {
        Fields fields;
        const char* return_period;
        const char *symbol, *formula, *numbers, *condition, *governs;
        std::optional<double> value;
    };
    const Fields torino{"239", "1", "1", Kind::one_pitch, {"35"}};
    const Fields without_load{"239", "1", "1", Kind::one_pitch, {"60"}};
    const Fields cut{"200", "1", "1", Kind::level_change, {"11", "4", "2.5", "10"}};
    constexpr const char* any = nullptr;
    const double q0 = 1.39 * (1 + 239.0 / 728 * 239 / 728);
    // clang-format off
    const Case cases[] = {
        {torino, any, "q0", "1.39 * (1 + (as / 728)^2)", "1.39 * (1 + (239 / 728)^2)", "zona == 0 and as > 200", "", q0},
        {torino, any, "cT", "1", "1", "", "", 1},
        {torino, "10", "cT", "0.273 * (1 - 0.5 * ln(0 - ln(1 - 1 / Tr)))", "0.273 * (1 - 0.5 * ln(0 - ln(1 - 1 / 10)))",
         "", "", 0.5802},
        {torino, any, "mu1", "(60 - alfa) * 0.8 / 30", "(60 - 35) * 0.8 / 30", "30 < alfa <= 60", "", 2.0 / 3},
        {torino, any, "k_qs_1", "min(3 / d_qs_1, 3 * d_qs_1)", any, "", "3 * d_qs_1", q0 * 2 / 3},
        {without_load, any, "k_qs_1", "min(3 / d_qs_1, 3 * d_qs_1)", "min(3 / 0, 3 * 0)", "", any, std::nullopt},
        {cut, any, "qs1", "qs1_intero + (qs2 - qs1_intero) / ls_intero * (ls_intero - b2)",
         "1.2000000000000002 + (4.5 - 1.2000000000000002) / 5 * (5 - 4)", "ls_intero >= b2", "", 1.86},
        {cut, any, "ls", "b2", "4", "ls_intero >= b2", "", 4},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.symbol);
        Program program;
        if (c.return_period != nullptr) confirm_return_period(c.return_period, program.cells);
        Fields fields = c.fields;
        fields.traced = true;
        const Outcome outcome = click(fields, program);
        const auto step = std::ranges::find(outcome.trace->steps, c.symbol, &Step::symbol);
        ASSERT_NE(step, outcome.trace->steps.end());
        EXPECT_EQ(step->formula, c.formula);
        EXPECT_EQ(step->numbers, c.numbers == any ? step->numbers : c.numbers);
        EXPECT_EQ(step->condition, c.condition);
        EXPECT_EQ(step->governs, c.governs == any ? step->governs : c.governs);
        ASSERT_EQ(step->value.has_value(), c.value.has_value());
        if (c.value) {
            EXPECT_NEAR(*step->value, *c.value, 1e-4);
        } else {
            EXPECT_EQ(step->fault, outcome.fault);
        }
    }
}

TEST(Steps, AddUpForTheGoldenRequests) {
    std::ifstream requests(TEST_DATA "/golden/requests.jsonl");
    int count = 0;
    for (std::string line; std::getline(requests, line); ++count) {
        const auto kind = kind_of(member(line, "calcolo"));
        if (!kind) continue;
        const auto or_1 = [](const std::string& text) { return text.empty() ? "1" : text; };
        Fields fields{.asinput = member(line, "altitudine"),
                      .ComboEsp = or_1(member(line, "ce")),
                      .TextCTermico = or_1(member(line, "ct")),
                      .kind = *kind};
        for (const Entry& entry : describe(*kind).entries)
            fields.entries.push_back(member(line, entry.key));
        Program program;
        program.cells.zone = static_cast<SnowZone>(std::atoi(member(line, "zona").c_str()));
        const std::string return_period = member(line, "periodo-ritorno");
        if (!return_period.empty()) confirm_return_period(return_period, program.cells);
        EXPECT_EQ(steps::flaw_of_click(fields, program), "") << line;
    }
    EXPECT_GT(count, 50);
}

// Numbers as people type them and, now and then, such as nobody does. The cells keep what the clicks before
// left in them.
TEST(Steps, AddUpForRandomClicks) {
    std::mt19937 random(19960116);
    const auto pick = [&](const auto& texts) { return std::string(texts[random() % std::size(texts)]); };
    constexpr std::string_view lengths[] = {"0",     "0.1", "1",     "2.5", "4", "8",
                                            "12.75", "30",  "1e200", "-3",  "x", "-1e400"};
    constexpr std::string_view slopes[] = {"0", "10", "15.01", "30", "35", "45.5", "60", "75", "-5", "1e308"};
    constexpr std::string_view altitudes[] = {"0", "200", "200.5", "239", "1600", "1e160", "1e400"};
    constexpr std::string_view coefficients[] = {"1", "1", "0.9", "1.1", "0", "-1", "1e-310", "1e300"};
    constexpr std::string_view return_periods[] = {"", "", "10", "50", "500", "1.02", "0.5", "1e300"};
    Program program;
    for (int i = 0; i < 20000; ++i) {
        if (i % 50 == 0) program = {};
        const std::string return_period = pick(return_periods);
        if (!return_period.empty()) confirm_return_period(return_period, program.cells);
        program.cells.zone = static_cast<SnowZone>(random() % 5);
        const Description& description = calculations()[random() % calculations().size()];
        Fields fields{.asinput = pick(altitudes),
                      .ComboEsp = pick(coefficients),
                      .TextCTermico = pick(coefficients),
                      .kind = description.kind};
        for (const Entry& entry : description.entries)
            fields.entries.push_back(entry.unit == "°" ? pick(slopes) : pick(lengths));
        ASSERT_EQ(steps::flaw_of_click(fields, program), "") << testing::PrintToString(fields.entries);
    }
}

}  // namespace
}  // namespace coltre
