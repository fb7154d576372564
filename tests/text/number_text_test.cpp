#include "text/number_text.h"

#include <gmock/gmock.h>

#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

// The second opinion is the C library's printf and strtod: this program never leaves the "C" locale.
namespace coltre {
namespace {

template <typename... Arguments>
std::string printed(const char* format, Arguments... arguments) {
    char buffer[512];
    std::snprintf(buffer, sizeof buffer, format, arguments...);
    return buffer;
}

/// Calls `check` with finite doubles of every size, denormals among them.
template <typename Check>
void for_doubles_of_every_size(Check check) {
    std::mt19937_64 random(1996);
    for (int i = 0; i < 20000; ++i) {
        const auto value = std::bit_cast<double>(random());
        if (std::isfinite(value)) check(value);
    }
}

TEST(NumberText, PlainAndDisplayForms) {
    struct Case {
        double value;
        const char* plain;
        const char* display;
    };
    for (const Case& c : {
             Case{0, "0", " 0"},
             Case{-0.0, "0", " 0"},
             Case{3, "3", " 3"},
             Case{-2, "-2", "-2"},
             Case{350, "350", " 350"},
             Case{0.5, ".5", " 0.5"},
             Case{-0.25, "-.25", "-0.25"},
             Case{0.576, ".576", " 0.576"},
             Case{10.05, "10.05", " 10.05"},
             Case{0.1 + 0.2, ".3", " 0.3"},
             Case{1.0 / 3, ".333333333333333", " 0.333333333333333"},
             Case{0.0001, ".0001", " 0.0001"},
             Case{0.00009999, "9.999E-05", " 9.999E-05"},
             Case{-1.5e-7, "-1.5E-07", "-1.5E-07"},
             Case{100000, "100000", " 100000"},
             Case{999999999999999.4, "999999999999999", " 999999999999999"},
             Case{999999999999999.5, "1E+15", " 1E+15"},  // sixteen digits at first, rounded to the even one
             Case{123456789012345.6, "123456789012346", " 123456789012346"},
             Case{2e20, "2E+20", " 2E+20"},
             Case{1e22, "1E+22", " 1E+22"},
             Case{DBL_MAX, "1.79769313486232E+308", " 1.79769313486232E+308"},
             Case{-5e-324, "-4.94065645841247E-324", "-4.94065645841247E-324"},
         }) {
        EXPECT_EQ(plain_number_text(c.value), c.plain);
        EXPECT_EQ(display_number_text(c.value), c.display);
    }
    for_doubles_of_every_size([](double value) {
        ASSERT_EQ(display_number_text(value), printed(value < 0 ? "%.15G" : " %.15G", value));
    });
}

TEST(NumberText, ShortestFormReadsBack) {
    EXPECT_EQ(shortest_number_text(0.1), "0.1");
    EXPECT_EQ(shortest_number_text(239), "239");
    EXPECT_EQ(shortest_number_text(1e22), "1e+22");
    EXPECT_EQ(shortest_number_text(-0.0), "0");
    EXPECT_EQ(shortest_number_text(0.1 + 0.2), "0.30000000000000004");
    for_doubles_of_every_size(
        [](double value) { ASSERT_EQ(std::strtod(shortest_number_text(value).c_str(), nullptr), value); });
}

TEST(RoundHalfEven, DecidesOnTheExactBinaryValue) {
    EXPECT_EQ(round_half_even(0.5, 0), 0);
    EXPECT_EQ(round_half_even(1.5, 0), 2);
    EXPECT_EQ(round_half_even(2.5, 0), 2);
    EXPECT_EQ(round_half_even(-2.5, 0), -2);
    EXPECT_EQ(round_half_even(0.125, 2), 0.12);
    EXPECT_EQ(round_half_even(0.375, 2), 0.38);
    EXPECT_EQ(round_half_even(2.675, 2), 2.67);      // 2.67499999999999982236431605997495353221893310546875
    EXPECT_EQ(round_half_even(0.00005, 4), 0.0001);  // 0.00005000000000000000239...
    EXPECT_EQ(round_half_even(4503599627370495.5, 0), 4503599627370496.0);
    EXPECT_EQ(round_half_even(1e22, 3), 1e22);
    EXPECT_EQ(round_half_even(-DBL_MAX, 99), -DBL_MAX);
    EXPECT_EQ(round_half_even(5e-324, 99), 0);
    EXPECT_FALSE(std::signbit(round_half_even(-0.0004, 3)));
    EXPECT_FALSE(std::signbit(round_half_even(-0.0, 0)));

    std::mt19937_64 random(4);
    std::uniform_real_distribution<double> loads(-1e6, 1e6);
    for (int i = 0; i < 20000; ++i) {
        const double value = loads(random);
        const int decimals = i % 12;
        ASSERT_EQ(round_half_even(value, decimals),
                  std::strtod(printed("%.*f", decimals, value).c_str(), nullptr));
    }
}

TEST(RoundSignificant, RoundsTheFifteenDigitsAwayFromZero) {
    EXPECT_EQ(round_significant(1234.5, 3), 1230);
    EXPECT_EQ(round_significant(0.012345, 2), 0.012);
    EXPECT_EQ(round_significant(98765, 2), 99000);
    EXPECT_EQ(round_significant(2.675, 3), 2.68);  // below the half in binary, on it in fifteen digits
    EXPECT_EQ(round_significant(2.5, 1), 3);
    EXPECT_EQ(round_significant(-2.5, 1), -3);
    EXPECT_EQ(round_significant(9.995, 3), 10);
    EXPECT_EQ(round_significant(-99.95, 3), -100);
    EXPECT_EQ(round_significant(0.1 + 0.2, 15), 0.3);
    EXPECT_EQ(round_significant(0.1 + 0.2, 99), 0.3);
    EXPECT_EQ(round_significant(0, 3), 0);
    EXPECT_FALSE(std::signbit(round_significant(-0.0, 3)));
    EXPECT_EQ(round_significant(5e-324, 1), 5e-324);
    EXPECT_EQ(round_significant(2.2250738585072014e-308, 3), 2.23e-308);
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(round_significant(DBL_MAX, 1), infinity);
    EXPECT_EQ(round_significant(-DBL_MAX, 15), -infinity);
    EXPECT_EQ(round_significant(1.5e308, 2), 1.5e308);
}

TEST(Pictures, WithAPoint) {
    struct Case {
        double value;
        int decimals;
        const char* picture;
    };
    for (const Case& c : {
             Case{1234.5678, 3, "1234.568"},
             Case{2, 3, "2."},
             Case{1.5, 0, "2."},
             Case{1.20, 3, "1.2"},
             Case{0, 3, "."},
             Case{0.0625, 3, ".063"},
             Case{0.05, 3, ".05"},
             Case{2.675, 2, "2.68"},
             Case{-1.005, 2, "-1.01"},
             Case{0.0005, 3, ".001"},
             Case{0.00049, 3, "."},
             Case{0.00005, 3, "."},
             Case{-0.0004, 3, "."},  // no sign of a zero
             Case{0.95, 1, "1."},
             Case{9.9996, 3, "10."},
             Case{999.95, 1, "1000."},
             Case{10.05, 1, "10.1"},
             Case{5e-324, 15, "."},
             Case{1e22, 2, "10000000000000000000000."},
             Case{123456789012345.6, 3, "123456789012346."},
         })
        EXPECT_EQ(fixed_picture(c.value, c.decimals), c.picture) << c.value << " with " << c.decimals;
}

TEST(Pictures, Whole) {
    EXPECT_EQ(whole_picture(12.5), "13");
    EXPECT_EQ(whole_picture(-12.5), "-13");
    EXPECT_EQ(whole_picture(99.5), "100");
    EXPECT_EQ(whole_picture(0.5), "1");
    EXPECT_EQ(whole_picture(0.4999), "");
    EXPECT_EQ(whole_picture(-0.05), "");
    EXPECT_EQ(whole_picture(0), "");
    EXPECT_EQ(whole_picture(1.2e17), "120000000000000000");
}

TEST(Pictures, WithAnExponent) {
    EXPECT_EQ(exponent_picture(123456789, 5), ".12346E9");
    EXPECT_EQ(exponent_picture(1.5e-7, 2), ".15E-6");
    EXPECT_EQ(exponent_picture(0.5, 3), ".5E0");
    EXPECT_EQ(exponent_picture(-0.05, 3), "-.5E-1");
    EXPECT_EQ(exponent_picture(99950, 3), ".1E6");
    EXPECT_EQ(exponent_picture(0.95, 1), ".1E1");
    EXPECT_EQ(exponent_picture(1e22, 4), ".1E23");
    EXPECT_EQ(exponent_picture(DBL_MAX, 1), ".2E309");
    EXPECT_EQ(exponent_picture(5e-324, 20), ".494065645841247E-323");
}

}  // namespace
}  // namespace coltre
