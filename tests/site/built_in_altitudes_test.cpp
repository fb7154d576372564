#include "site/built_in_altitudes.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "site/regions.h"
#include "text/characters.h"
#include "text/number_reading.h"

namespace coltre {
namespace {

std::vector<std::string> lines_of_table() {
    std::istringstream table{std::string(built_in_altitudes())};
    std::vector<std::string> lines;
    for (std::string line; std::getline(table, line);)
        lines.push_back(line);
    return lines;
}

// The blocks from the north to the south, two of them twice; the second copy of ReggioCalabria is headed by
// its first municipality.
constexpr std::string_view headers =
    "Torino Biella Vercelli Verbania Novara Cuneo Asti Alessandria Aosta Varese Como Lecco "
    "Sondrio Lodi Milano Bergamo Brescia Pavia Cremona Mantova Bolzano Trento Verona Varese "
    "Vicenza Belluno Treviso Venezia Padova Rovigo Udine Gorizia Trieste Pordenone Imperia "
    "Savona Genova LaSpezia Piacenza Parma ReggioEmilia Modena Bologna Ferrara Ravenna Forlì "
    "Rimini Massa Lucca Pistoia Firenze Prato Livorno Pisa Arezzo Siena Grosseto Perugia "
    "Terni Pesaro Ancona Macerata AscoliPiceno Viterbo Rieti Roma Latina Frosinone L'Aquila "
    "Teramo Pescara Pesaro Chieti CampoBasso Isernia Caserta Benevento Napoli Avellino "
    "Salerno Foggia Bari Taranto Brindisi Lecce Potenza Matera Cosenza Crotone Catanzaro "
    "ViboValentia ReggioCalabria Trapani Palermo Messina Agrigento Caltanissetta Enna "
    "Catania Ragusa Siracusa Sassari Nuoro Cagliari Oristano";

TEST(BuiltInAltitudes, BlocksStandInTheirOrder) {
    std::string found;
    bool first_of_block = true;
    for (const std::string& line : lines_of_table()) {
        if (first_of_block && line.find(' ') == std::string::npos) found += (found.empty() ? "" : " ") + line;
        first_of_block = line.empty();
    }
    EXPECT_EQ(found, headers);
}

TEST(BuiltInAltitudes, HasTheKnownNumberOfLines) {
    const std::vector<std::string> lines = lines_of_table();
    EXPECT_EQ(lines.size(), 8618U);
    EXPECT_EQ(std::ranges::count(lines, ""), 105);
    std::set<std::string> names;
    int municipalities = 0;
    int repeated = 0;
    int highest = 0;
    for (const std::string& line : lines) {
        const std::size_t blank = line.find(' ');
        if (blank == std::string::npos) continue;
        ++municipalities;
        if (!names.insert(line.substr(0, blank)).second) ++repeated;
        EXPECT_LE(character_count(line.substr(0, blank)), 27U) << line;
        int altitude = -1;
        EXPECT_TRUE(read_whole_number(trim_blanks(line.substr(blank)), altitude) && altitude >= 0) << line;
        highest = std::max(highest, altitude);
    }
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

TEST(BuiltInAltitudes, SecondBlocksAreCopies) {
    const std::string_view table = built_in_altitudes();
    for (const std::string_view province : {"Varese", "Pesaro"}) {
        const std::string header = "\n\n" + std::string(province) + "\n";
        const std::size_t first = table.find(header);
        const std::size_t second = table.find(header, first + 1);
        ASSERT_NE(second, std::string_view::npos);
        const std::string_view block = table.substr(first, table.find("\n\n", first + 2) - first);
        EXPECT_EQ(table.substr(second, block.size() + 2), std::string(block) + "\n\n");
    }
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
