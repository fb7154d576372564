#include "site/built_in_altitudes.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <sstream>
#include <string>

#include "text/characters.h"
#include "text/number_reading.h"

namespace coltre {
namespace {

TEST(BuiltInAltitudes, HasTheKnownNumberOfLines) {
    std::istringstream table{std::string(built_in_altitudes())};
    std::set<std::string> names;
    int lines = 0, empty = 0, municipalities = 0, repeated = 0, highest = 0;
    for (std::string line; std::getline(table, line); ++lines) {
        if (line.empty()) ++empty;
        const std::string name = line.substr(0, line.find(' '));
        if (name == line) continue;
        ++municipalities;
        if (!names.insert(name).second) ++repeated;
        int altitude = -1;
        EXPECT_TRUE(read_whole_number(trim_blanks(line.substr(name.size())), altitude)) << line;
        highest = std::max(highest, altitude);
    }
    EXPECT_EQ(lines, 8618);
    EXPECT_EQ(empty, 105);
    EXPECT_EQ(municipalities, 8408 - 1) << "one municipality line, 33543, has no blank";
    EXPECT_EQ(repeated, 315);
    EXPECT_EQ(highest, 2035);
}

TEST(BuiltInAltitudes, HoldsItsTellingRows) {
    const std::string table = "\n" + std::string(built_in_altitudes());
    for (const std::string rows : {
             "\nTorino\nTorino                         239\nAglie'                         315\n",
             "\nAlaDiStura                     1080\n",
             "\nSestriere                      2035\n",
             "\nChamois                        1815\n",
             "\nLivigno                        1816\n",
             "\nComacchio                      0\n",
             "\nTaglioDiPo                     0\n",
             "\nPescara\nPescara                      4\n",
             "\nNogaroleVicentino              525\n33543\nNoventaVicentina               16\n",
             "\n\nReggioDiCalabria               15\n",
         })
        EXPECT_THAT(table, testing::HasSubstr(rows));
    EXPECT_THAT(table, testing::EndsWith("\nZerfaliu                       15\n"));
}

TEST(BuiltInAltitudes, FileIsInTheCodePageWithCrLf) {
    const std::string file = built_in_altitude_file();
    EXPECT_THAT(file, testing::StartsWith("Torino\r\nTorino                         239\r\n"));
    EXPECT_THAT(file, testing::HasSubstr("\r\n\r\nForl\xEC\r\nForl\xEC                          34\r\n"));
    EXPECT_THAT(file, testing::HasSubstr("\r\nCh\xE2tillon                      "));
    EXPECT_THAT(file, testing::EndsWith("Zerfaliu                       15\r\n"));
    EXPECT_EQ(std::ranges::count(file, '\n'), 8618);
    EXPECT_EQ(std::ranges::count(file, '\r'), 8618);
    EXPECT_EQ(file.find('?'), std::string::npos) << "a character outside the code page";
}

}  // namespace
}  // namespace coltre
