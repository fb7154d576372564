#include "text/number_text.h"

#include <gmock/gmock.h>

#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>

// The second opinion is the C library's printf and strtod: this program never leaves the "C" locale.
namespace coltre {
namespace {

template <typename... Arguments>
std::string printed(const char* format, Arguments... arguments) {
    char buffer[512];
    std::snprintf(buffer, sizeof buffer, format, arguments...);
    return buffer;
}

double read_back(const std::string& text) {
    return std::strtod(text.c_str(), nullptr);
}

TEST(NumberText, PlainForm) {
    struct Case {
        double value;
        const char* plain;
    };
    // 999999999999999.5 has sixteen digits at first, rounded to the even one.
    for (const Case& c :
         {Case{-0.0, "0"}, Case{-350, "-350"}, Case{0.5, ".5"}, Case{-0.25, "-.25"}, Case{0.1 + 0.2, ".3"},
          Case{0.0001, ".0001"}, Case{0.00009999, "9.999E-05"}, Case{999999999999999.4, "999999999999999"},
          Case{999999999999999.5, "1E+15"}, Case{-5e-324, "-4.94065645841247E-324"}})
        EXPECT_EQ(plain_number_text(c.value), c.plain);
}

TEST(NumberText, DisplayAndShortestFormsOfEverySize) {
    EXPECT_EQ(display_number_text(-0.0), " 0");
    EXPECT_EQ(shortest_number_text(-0.0), "0");
    EXPECT_EQ(shortest_number_text(0.1 + 0.2), "0.30000000000000004");
    std::mt19937_64 random(1996);
    for (int i = 0; i < 20000; ++i) {
        const auto value = std::bit_cast<double>(random());
        if (!std::isfinite(value)) continue;
        ASSERT_EQ(display_number_text(value), printed(value < 0 ? "%.15G" : " %.15G", value));
        ASSERT_EQ(read_back(shortest_number_text(value)), value);
    }
}

struct RoundingCase {
    double value;
    int places;
    double rounded;
};

TEST(RoundHalfEven, DecidesOnTheExactBinaryValue) {
    // 2.675 is 2.67499999999999982236431605997495353221893310546875.
    for (const RoundingCase& c : {RoundingCase{0.5, 0, 0}, RoundingCase{1.5, 0, 2}, RoundingCase{-2.5, 0, -2},
                                  RoundingCase{0.125, 2, 0.12}, RoundingCase{2.675, 2, 2.67},
                                  RoundingCase{4503599627370495.5, 0, 4503599627370496.0},
                                  RoundingCase{-DBL_MAX, 99, -DBL_MAX}, RoundingCase{5e-324, 99, 0}})
        EXPECT_EQ(round_half_even(c.value, c.places), c.rounded) << c.value;
    EXPECT_FALSE(std::signbit(round_half_even(-0.0004, 3)));

    std::mt19937_64 random(4);
    std::uniform_real_distribution<double> loads(-1e6, 1e6);
    for (int i = 0; i < 20000; ++i) {
        const double value = loads(random);
        ASSERT_EQ(round_half_even(value, i % 12), read_back(printed("%.*f", i % 12, value)));
    }
}

TEST(RoundSignificant, RoundsTheFifteenDigitsAwayFromZero) {
    // 2.675 is below the half in binary, on it in fifteen digits.
    for (const RoundingCase& c :
         {RoundingCase{0.012345, 2, 0.012}, RoundingCase{98765, 2, 99000}, RoundingCase{2.675, 3, 2.68},
          RoundingCase{-2.5, 1, -3}, RoundingCase{9.995, 3, 10}, RoundingCase{0.1 + 0.2, 99, 0.3},
          RoundingCase{5e-324, 1, 5e-324}, RoundingCase{2.2250738585072014e-308, 3, 2.23e-308},
          RoundingCase{DBL_MAX, 1, HUGE_VAL}, RoundingCase{-DBL_MAX, 15, -HUGE_VAL}})
        EXPECT_EQ(round_significant(c.value, c.places), c.rounded) << c.value;
    EXPECT_FALSE(std::signbit(round_significant(-0.0, 3)));
}

TEST(Pictures, WithAPoint) {
    struct Case {
        double value;
        int decimals;
        const char* picture;
    };
    for (const Case& c :
         {Case{1234.5678, 3, "1234.568"}, Case{2, 3, "2."}, Case{0, 3, "."}, Case{0.0625, 3, ".063"},
          Case{2.675, 2, "2.68"}, Case{-1.005, 2, "-1.01"}, Case{0.0005, 3, ".001"}, Case{0.00049, 3, "."},
          Case{0.00005, 3, "."}, Case{-0.0004, 3, "."}, Case{0.95, 1, "1."}, Case{9.9996, 3, "10."},
          Case{1e22, 2, "10000000000000000000000."}, Case{123456789012345.6, 3, "123456789012346."}})
        EXPECT_EQ(fixed_picture(c.value, c.decimals), c.picture) << c.value << " with " << c.decimals;
}

}  // namespace
}  // namespace coltre
