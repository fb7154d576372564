#include "text/number_reading.h"

#include <gmock/gmock.h>

#include <cfloat>

namespace coltre {
namespace {

constexpr auto other = StrictNumber::Verdict::not_a_number;
constexpr auto beyond = StrictNumber::Verdict::beyond_range;

struct ReadingCase {
    std::string text;
    double value;  ///< of the leading number
    StrictNumber::Verdict verdict = StrictNumber::Verdict::number;
};

void expect_strictly(const ReadingCase& c, char separator) {
    const StrictNumber read = read_strictly(c.text, separator);
    EXPECT_EQ(read.verdict, c.verdict) << c.text;
    EXPECT_EQ(read.value, c.verdict == other ? 0 : c.value) << c.text;
}

TEST(ReadNumber, TakesTheLeadingNumberOrStrictlyTheWholeText) {
    const std::string zeros(400, '0');
    const std::string nines(20, '9');
    for (const ReadingCase& c :
         {ReadingCase{"  -12.50 ", -12.5}, ReadingCase{"+7", 7}, ReadingCase{"-.5", -0.5},
          ReadingCase{"5.e2", 500}, ReadingCase{"1E+3", 1000}, ReadingCase{"1e-3", 0.001},
          ReadingCase{"007", 7}, ReadingCase{"1e", 1, other}, ReadingCase{"1e+", 1, other},
          ReadingCase{"1,5", 1, other}, ReadingCase{"1.2.3", 1.2, other}, ReadingCase{"12 3", 12, other},
          ReadingCase{"0x10", 0, other}, ReadingCase{"1d3", 1, other}, ReadingCase{"  ", 0, other},
          ReadingCase{".", 0, other}, ReadingCase{"-", 0, other}, ReadingCase{"+-5", 0, other},
          ReadingCase{"- 5", 0, other}, ReadingCase{".e5", 0, other}, ReadingCase{"\t5", 0, other},
          ReadingCase{"nan", 0, other}, ReadingCase{"-inf", 0, other},
          // Too large is beyond the range; too small is 0, from half of the smallest double on.
          ReadingCase{"1.7976931348623157e308", DBL_MAX}, ReadingCase{"1.8e308", 0, beyond},
          ReadingCase{"1" + zeros, 0, beyond}, ReadingCase{"-1" + zeros + ".5", 0, beyond},
          ReadingCase{"0." + zeros + "1e999", 0, beyond}, ReadingCase{"0." + zeros + "1", 0},
          ReadingCase{"1" + zeros + "e-999", 0}, ReadingCase{"1e" + nines, 0, beyond},
          ReadingCase{"1e-" + nines, 0}, ReadingCase{"0.000e" + nines, 0}, ReadingCase{"-1e-999", 0},
          ReadingCase{"4.94e-324", 4.94e-324}, ReadingCase{"2.4703e-324", 0}}) {
        const LenientNumber read = read_leniently(c.text);
        EXPECT_EQ(read.value, c.value) << c.text;
        EXPECT_EQ(read.wholly_understood, c.verdict != other) << c.text;
        EXPECT_EQ(read.beyond_range, c.verdict == beyond) << c.text;
        expect_strictly(c, '.');
    }
}

TEST(ReadStrictly, TakesACommaBesideThePoint) {
    for (const ReadingCase& c :
         {ReadingCase{"2,5", 2.5}, ReadingCase{"2.5", 2.5}, ReadingCase{",5", 0.5},
          ReadingCase{",", 0, other}, ReadingCase{"1,234.5", 0, other}, ReadingCase{"1.234,5", 0, other}})
        expect_strictly(c, ',');
}

}  // namespace
}  // namespace coltre
