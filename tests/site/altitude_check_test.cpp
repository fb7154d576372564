#include "site/altitude_check.h"

#include <gmock/gmock.h>

#include <random>
#include <string>
#include <vector>

#include "platform/code_page.h"
#include "site/altitude_file.h"
#include "site/built_in_altitudes.h"
#include "site/regions.h"
#include "tests/site/altitude_directory.h"
#include "tests/support/fake_doors.h"

namespace coltre {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// "line province: reason" of each fault.
std::vector<std::string> told(std::string_view file) {
    std::vector<std::string> texts;
    for (const AltitudeFault& fault : check_altitudes(file))
        texts.push_back(std::to_string(fault.line) + " " + std::string(fault.province) + ": " +
                        std::string(fault.reason));
    return texts;
}

/// A sound file of the built-in table.
std::string sound_file() {
    return repair_altitudes(built_in_altitude_file());
}

/// The sound file with Torino's block replaced by these lines.
std::string with_torino(const std::string& block) {
    std::string file = sound_file();
    return file.replace(0, file.find("Biella\r\n"), block);
}

TEST(AltitudeCheck, BuiltInTableHasItsTwoFaults) {
    const std::vector<std::string> lines = told(built_in_altitude_file());
    EXPECT_THAT(lines,
                ElementsAre("3530 Vicenza: manca lo spazio tra il nome e l'altitudine",
                            "8618 Oristano: manca la riga vuota che chiude la provincia alla fine del file"));
    std::string expected = built_in_altitude_file() + "\r\n";
    expected.erase(expected.find("33543\r\n"), 7);
    EXPECT_EQ(sound_file(), expected);
}

// Each fault is told once, at its line, and mended without touching anything else. Airasca is a municipality
// of Torino, Ala and Bo are none.
struct FaultCase {
    std::string name;
    std::string block;     ///< of Torino, at the head of a file that is sound otherwise
    std::string fault;     ///< empty: none
    std::string repaired;  ///< the block
};

class AltitudeFaults : public testing::TestWithParam<FaultCase> {};

TEST_P(AltitudeFaults, AreToldAndMended) {
    const FaultCase& row = GetParam();
    const std::string file = with_torino(row.block);
    const std::vector<std::string> faults = told(file);
    if (row.fault.empty()) {
        EXPECT_THAT(faults, IsEmpty());
    } else {
        EXPECT_THAT(faults, ElementsAre(row.fault));
    }
    const std::string repaired = repair_altitudes(file);
    const std::size_t rest = repaired.find("Biella\r\n");
    EXPECT_EQ(repaired.substr(0, rest), row.repaired);
    EXPECT_TRUE(repaired == with_torino(row.repaired)) << "the other provinces";
}

const std::string ala = "Ala                            12\r\n";
const std::string airasca = "Airasca                        257\r\n";

INSTANTIATE_TEST_SUITE_P(
    Lines, AltitudeFaults,
    testing::Values(
        FaultCase{"OwnAltitude", "Torino\r\nAirasca 1257\r\n\r\n", "", "Torino\r\nAirasca 1257\r\n\r\n"},
        FaultCase{"UnknownLineWithoutBlank", "Torino\r\n" + ala + "Bo\r\n\r\n",
                  "3 Torino: manca lo spazio tra il nome e l'altitudine", "Torino\r\n" + ala + "\r\n"},
        FaultCase{"KnownLineWithoutAltitude", "Torino\r\nAirasca\r\n\r\n",
                  "2 Torino: manca lo spazio tra il nome e l'altitudine", "Torino\r\n" + airasca + "\r\n"},
        FaultCase{"Tab", "Torino\r\nAla\t12\r\n\r\n", "2 Torino: una tabulazione sta al posto degli spazi",
                  "Torino\r\n" + ala + "\r\n"},
        FaultCase{"Comma", "Torino\r\nAla     12,5\r\n\r\n", "2 Torino: una virgola divide la riga",
                  "Torino\r\nAla     12\r\n\r\n"},
        FaultCase{"CommaAtTheEnd", "Torino\r\nAla     12,\r\nBo      3\r\n\r\n",
                  "2 Torino: una virgola divide la riga", "Torino\r\nAla     12\r\nBo      3\r\n\r\n"},
        FaultCase{"DroppedBetweenCrAndLf", "Torino\rAla     12\rBo\n\n",
                  "3 Torino: manca lo spazio tra il nome e l'altitudine", "Torino\rAla     12\r\n\n"},
        FaultCase{"TooNear", "Torino\r\nAla 12\r\nBo 123\r\n\r\n",
                  "2 Torino: l'altitudine non coincide con gli ultimi quattro caratteri della riga",
                  "Torino\r\n" + ala + "Bo 123\r\n\r\n"},
        FaultCase{"FiveDigits", "Torino\r\nAirasca   12345\r\n\r\n",
                  "2 Torino: l'altitudine non coincide con gli ultimi quattro caratteri della riga",
                  "Torino\r\n" + airasca + "\r\n"},
        FaultCase{"NoNumber", "Torino\r\nAirasca   alta\r\n" + ala + "\r\n",
                  "2 Torino: l'altitudine non è un numero", "Torino\r\n" + airasca + ala + "\r\n"},
        FaultCase{"NameWithBlank", "Torino\r\nAl a    12\r\n\r\n",
                  "2 Torino: la riga non contiene soltanto nome e altitudine",
                  "Torino\r\nAla" + ala.substr(3) + "\r\n"},
        FaultCase{"HeaderTwice", "Torino\r\nTorino\r\nTorino   240\r\n\r\n",
                  "2 Torino: manca lo spazio tra il nome e l'altitudine", "Torino\r\nTorino   240\r\n\r\n"},
        FaultCase{"NotClosed", "Torino\r\n" + ala,
                  "3 Torino: manca la riga vuota prima della provincia che segue",
                  "Torino\r\n" + ala + "\r\n"},
        FaultCase{"EmptyLineWithin", "Torino\r\n" + ala + "\r\nBo      3\r\nCi      4\r\n\r\n",
                  "4 Torino: la riga segue la riga vuota che chiude la provincia",
                  "Torino\r\n" + ala + "Bo      3\r\nCi      4\r\n\r\n"},
        FaultCase{"Unreached",
                  "note,\t\r\n\r\nTorino\r\n" + ala + "\r\n" + ala + "33543\r\n\r\nTorino\r\n\r\n", "",
                  "note,\t\r\n\r\nTorino\r\n" + ala + "\r\n" + ala + "33543\r\n\r\nTorino\r\n\r\n"}),
    [](const auto& test_case) { return test_case.param.name; });

TEST(AltitudeCheck, MissingAndEmptyProvincesGetTheirBlock) {
    std::string file = sound_file();
    const std::string block = file.substr(0, file.find("Biella\r\n"));
    // A wrong letter hides the whole block.
    file.insert(0, "T");
    EXPECT_THAT(told(file), ElementsAre("0 Torino: manca la riga con il nome della provincia"));
    EXPECT_EQ(repair_altitudes(file), file + block);

    const std::string empty = with_torino("Torino\r\n\r\n");
    EXPECT_THAT(told(empty), ElementsAre("1 Torino: la provincia non contiene comuni"));
    EXPECT_EQ(repair_altitudes(empty), sound_file());
    EXPECT_EQ(check_altitudes("").size(), 103U);
}

TEST(AltitudeCheck, FileSavedInUtf8IsConverted) {
    const std::string file = from_code_page(sound_file());
    for (const std::string& mark : {std::string(), std::string("\xEF\xBB\xBF")}) {
        EXPECT_THAT(told(mark + file), ElementsAre("0 : il file è scritto in UTF-8 e non in Windows-1252"));
        EXPECT_EQ(repair_altitudes(mark + file), sound_file());
    }
}

/// Changes a few bytes or lines at random.
std::string mutated(std::string file, std::mt19937& random) {
    const auto below = [&](std::size_t n) {
        return std::uniform_int_distribution<std::size_t>(0, n - 1)(random);
    };
    static constexpr std::string_view bytes(",\t\r\n  9A\xEC\0", 10);
    for (std::size_t changes = 1 + below(40); changes > 0; --changes) {
        const std::size_t position = below(file.size());
        switch (below(5)) {
            case 0:
                file[position] = bytes[below(bytes.size())];
                break;
            case 1:
                file.insert(position, 1, bytes[below(bytes.size())]);
                break;
            case 2:
                file.erase(position, 1 + below(60));
                break;
            case 3:
                file.insert(below(file.size()), file.substr(position, below(2000)));
                break;
            default:
                file.insert(position, "\r\nMilano\r\n");
        }
    }
    return file;
}

TEST(AltitudeRepair, TakesHugeLinesAndJunk) {
    constexpr std::size_t size = 3'000'000;
    std::string junk = "Torino\r\n";
    std::mt19937 random(1);
    while (junk.size() < size)
        junk += static_cast<char>(random());
    for (const std::string& file :
         {junk, "Torino\r\n" + std::string(size, 'a'), "Torino\n" + std::string(size, ' '),
          "Torino\n" + std::string(size, '\n'), "Torino\r" + std::string(size, ',')})
        EXPECT_THAT(told(repair_altitudes(file)), IsEmpty());
}

class RepairOfFile : public testing::Test, public AltitudeDirectory {
  protected:
    FakeDoors fake;

    void expect_all_readable() {
        Doors doors = fake.doors();
        for (const Region& region : regions()) {
            for (const std::string_view province : region.provinces)
                EXPECT_TRUE(FillMunicipalities(text(), province, doors)) << province;
        }
    }
};

TEST_F(RepairOfFile, MakesTheBuiltInTableReadable) {
    put("altitudini.txt", built_in_altitude_file());
    EXPECT_EQ(repair_altitude_file(text()).faults.size(), 2U);
    EXPECT_EQ(content("altitudini.bak"), built_in_altitude_file());
    EXPECT_EQ(content("altitudini.txt"), sound_file());
    expect_all_readable();
    Doors doors = fake.doors();
    EXPECT_EQ(FillMunicipalities(text(), "Vicenza", doors)->names.size(), 121U);
}

TEST_F(RepairOfFile, LeavesNothingToStumbleOnWhateverTheFile) {
    std::mt19937 random(1996);
    const std::string table = built_in_altitude_file();
    for (int run = 0; run < 60 && !HasFailure(); ++run) {
        SCOPED_TRACE(run);
        std::string file = mutated(table, random);
        if (run % 3 == 1) std::erase(file, '\n');
        if (run % 3 == 2) file.resize(file.size() / 2);
        const std::string repaired = repair_altitudes(file);
        EXPECT_THAT(told(repaired), IsEmpty());
        EXPECT_TRUE(repair_altitudes(repaired) == repaired);
        put("altitudini.txt", repaired);
        expect_all_readable();
        EXPECT_TRUE(content("altitudini.txt") == repaired) << "a reader had it written anew";
    }
}

TEST_F(RepairOfFile, LeavesASoundFileAndMakesAMissingOne) {
    EXPECT_FALSE(check_altitude_file(text()).failure.empty());
    EXPECT_EQ(repair_altitude_file(text()).failure, "");
    EXPECT_EQ(content("altitudini.txt"), sound_file());
    EXPECT_THAT(repair_altitude_file(text()).faults, IsEmpty());
    EXPECT_THAT(check_altitude_file(text()).faults, IsEmpty());
    EXPECT_THAT(files(), ElementsAre("altitudini.txt"));
}

TEST_F(RepairOfFile, SaysWhyItFailed) {
    EXPECT_EQ(repair_altitude_file(text() + "\\altrove").failure, "la cartella non esiste");
    std::filesystem::create_directory(path() / "altitudini.txt");
    EXPECT_EQ(repair_altitude_file(text()).failure, "il file non si può leggere");
    EXPECT_FALSE(check_altitude_file(text()).failure.empty());
}

}  // namespace
}  // namespace coltre
