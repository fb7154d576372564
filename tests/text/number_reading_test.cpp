#include "text/number_reading.h"

#include <gmock/gmock.h>

#include <cfloat>
#include <string>

namespace coltre {
namespace {

struct LenientCase {
    std::string text;
    double value;
    bool wholly_understood = true;
    bool beyond_range = false;
};

TEST(ReadLeniently, TakesTheLeadingNumber) {
    const LenientCase cases[] = {
        {"12", 12},          {"  -12.50 ", -12.5},
        {"+7", 7},           {".5", 0.5},
        {"-.5", -0.5},       {"5.", 5},
        {"5.e2", 500},       {"1E+3", 1000},
        {"1e-3", 0.001},     {"0.1", 0.1},
        {"007", 7},          {"1e", 1, false},
        {"1e+", 1, false},   {"1e-x", 1, false},
        {"1,5", 1, false},   {"1.2.3", 1.2, false},
        {"12 3", 12, false}, {"12abc", 12, false},
        {"0x10", 0, false},  {"1d3", 1, false},
        {"", 0, false},      {"   ", 0, false},
        {".", 0, false},     {"-", 0, false},
        {"+-5", 0, false},   {"- 5", 0, false},
        {"e5", 0, false},    {".e5", 0, false},
        {"\t5", 0, false},   {"nan", 0, false},
        {"-inf", 0, false},  {"Infinity", 0, false},
        {"１", 0, false},  // full-width digit
    };
    for (const LenientCase& c : cases) {
        const LenientNumber read = read_leniently(c.text);
        EXPECT_EQ(read.value, c.value) << c.text;
        EXPECT_EQ(read.wholly_understood, c.wholly_understood) << c.text;
        EXPECT_FALSE(read.beyond_range) << c.text;
    }
}

TEST(ReadLeniently, TellsTooLargeFromTooSmall) {
    const std::string zeros(400, '0');
    const LenientCase cases[] = {
        {"1e999", 0, true, true},
        {"-1e999", 0, true, true},
        {"1.8e308", 0, true, true},
        {"1.7976931348623157e308", DBL_MAX},
        {"1" + zeros, 0, true, true},
        {"1" + zeros + ".5", 0, true, true},
        {"1" + zeros + "e-400", 1},
        {"0." + zeros + "1e401", 1},
        {"0." + zeros + "1e999", 0, true, true},
        {"0." + zeros + "1", 0},
        {"1" + zeros + "e-999", 0},
        {"1e99999999999999999999", 0, true, true},
        {"1e-99999999999999999999", 0},
        {"1e-999", 0},
        {"-1e-999", 0},
        {"0e999", 0},
        {"0.000e99999999999999999999", 0},
        {"4.94e-324", 4.94e-324},
        {"2.4703e-324", 0},  // less than half of the smallest double
        {"2.2250738585072011e-308", 2.2250738585072011e-308},
    };
    for (const LenientCase& c : cases) {
        const LenientNumber read = read_leniently(c.text);
        EXPECT_EQ(read.value, c.value) << c.text;
        EXPECT_EQ(read.beyond_range, c.beyond_range) << c.text;
        EXPECT_TRUE(read.wholly_understood) << c.text;
    }
}

TEST(ReadStrictly, TakesTheWholeTextOrNothing) {
    using Verdict = StrictNumber::Verdict;
    struct Case {
        const char* text;
        char separator;
        Verdict verdict;
        double value = 0;
    };
    for (const Case& c : {
             Case{"2", '.', Verdict::number, 2},          Case{" -2.5 ", '.', Verdict::number, -2.5},
             Case{"+.5", ',', Verdict::number, 0.5},      Case{"5.", '.', Verdict::number, 5},
             Case{"1E-3", '.', Verdict::number, 0.001},   Case{"2,5", ',', Verdict::number, 2.5},
             Case{"2.5", ',', Verdict::number, 2.5},      Case{",5", ',', Verdict::number, 0.5},
             Case{"1e-999", '.', Verdict::number, 0},     Case{"2,5", '.', Verdict::not_a_number},
             Case{"1,234.5", ',', Verdict::not_a_number}, Case{"1.234,5", ',', Verdict::not_a_number},
             Case{"1 000", '.', Verdict::not_a_number},   Case{"", '.', Verdict::not_a_number},
             Case{"  ", '.', Verdict::not_a_number},      Case{",", ',', Verdict::not_a_number},
             Case{"2m", '.', Verdict::not_a_number},      Case{"1e", '.', Verdict::not_a_number},
             Case{"nan", '.', Verdict::not_a_number},     Case{"inf", '.', Verdict::not_a_number},
             Case{"0x10", '.', Verdict::not_a_number},    Case{"1e999", '.', Verdict::beyond_range},
             Case{"-1e999", '.', Verdict::beyond_range},
         }) {
        const StrictNumber read = read_strictly(c.text, c.separator);
        EXPECT_EQ(read.verdict, c.verdict) << c.text;
        EXPECT_EQ(read.value, c.value) << c.text;
    }
}

}  // namespace
}  // namespace coltre
