#include "site/built_in_altitudes.h"

#include <gmock/gmock.h>

#include <set>
#include <sstream>

#include "text/number_reading.h"

namespace coltre {
namespace {

TEST(BuiltInAltitudes, HasTheKnownNumberOfLines) {
    std::istringstream table{std::string(built_in_table())};
    std::set<std::string> names;
    int lines = 0, empty = 0, municipalities = 0;
    double highest = 0;
    for (std::string line; std::getline(table, line); ++lines) {
        if (line.empty()) ++empty;
        const std::string name = line.substr(0, line.find(' '));
        if (name == line) continue;
        ++municipalities;
        names.insert(name);
        const StrictNumber altitude = read_strictly(line.substr(name.size()), '.');
        EXPECT_EQ(altitude.verdict, StrictNumber::Verdict::number) << line;
        highest = std::max(highest, altitude.value);
    }
    EXPECT_EQ(lines, 8618);
    EXPECT_EQ(empty, 105);
    EXPECT_EQ(municipalities, 8408 - 1) << "one municipality line, 33543, has no blank";
    EXPECT_EQ(names.size(), 8407U - 315U);
    EXPECT_EQ(highest, 2035);
}

TEST(BuiltInAltitudes, FileHoldsItsTellingRowsInTheCodePageWithCrLf) {
    const std::string file = "\r\n" + built_in_altitude_file();
    for (const std::string rows : {
             "\r\nTorino\r\nTorino                         239\r\nAglie'                         315\r\n",
             "\r\nNogaroleVicentino              525\r\n33543\r\nNoventaVicentina               16\r\n",
             "\r\n\r\nReggioDiCalabria               15\r\n",
             "\r\n\r\nForl\xEC\r\nForl\xEC                          34\r\n",
             "\r\nCh\xE2tillon                      ",
         })
        EXPECT_THAT(file, testing::HasSubstr(rows));
    EXPECT_THAT(file, testing::EndsWith("Zerfaliu                       15\r\n"));
    EXPECT_EQ(std::ranges::count(file, '\n'), 8619);
    EXPECT_EQ(std::ranges::count(file, '\r'), 8619);
    EXPECT_EQ(file.find('?'), std::string::npos) << "a character outside the code page";
}

}  // namespace
}  // namespace coltre
