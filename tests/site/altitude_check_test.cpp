#include "site/altitude_check.h"

#include <gmock/gmock.h>

#include <random>

#include "platform/code_page.h"
#include "site/built_in_altitudes.h"
#include "site/municipalities.h"
#include "site/regions.h"

namespace coltre {
namespace {

using testing::ElementsAre;

/// "line province: reason" of each fault.
std::vector<std::string> faults_of(std::string_view file) {
    std::vector<std::string> texts;
    for (const AltitudeFault& it : inspect_altitudes(file).faults)
        texts.push_back(std::to_string(it.line) + " " + std::string(it.province) + ": " +
                        std::string(it.reason));
    return texts;
}

std::string mended(std::string_view file) {
    return inspect_altitudes(file).repaired;
}

/// A sound file of the built-in table.
std::string sound_file() {
    return mended(built_in_altitude_file());
}

/// The sound file with Torino's block replaced by these lines.
std::string with_torino(const std::string& block) {
    std::string file = sound_file();
    return file.replace(0, file.find("Biella\r\n"), block);
}

TEST(AltitudeCheck, BuiltInTableHasItsTwoFaults) {
    EXPECT_THAT(faults_of(built_in_altitude_file()),
                ElementsAre("3530 Vicenza: manca lo spazio tra il nome e l'altitudine",
                            "8618 Oristano: manca la riga vuota che chiude la provincia alla fine del file"));
    EXPECT_EQ(built_in_altitude_file().find('?'), std::string::npos) << "a character outside the code page";
    std::string expected = built_in_altitude_file() + "\r\n";
    expected.erase(expected.find("33543\r\n"), 7);
    EXPECT_EQ(sound_file(), expected);
}

// Each fault is reported once, at its line, and mended without touching anything else. Airasca is a
// municipality of Torino, Ala and Bo are none.
TEST(AltitudeCheck, FaultsAreToldAndMended) {
    const std::string ala = "Ala                            12\r\n", end = "\r\n";
    const std::string airasca = "Airasca                        257\r\n";
    const std::string blank = "manca lo spazio tra il nome e l'altitudine";
    const std::string place = "l'altitudine non coincide con gli ultimi quattro caratteri della riga";
    const std::string comma = "una virgola divide la riga", bo = "Bo      3\r\n";
    const std::string unreached = ala + end + ala + "33543\r\n\r\nnote,\t\r\n\r\nTorino\r\n\r\n";
    struct Row {
        std::string block;  ///< of Torino below its name, at the head of a file that is sound otherwise
        int line;           ///< 0: no fault
        std::string fault;
        std::string repaired;  ///< the block
    };
    for (const auto& [block, line, fault, repaired] :
         {Row{"Airasca 1257\r\n\r\n", 0, "", "Airasca 1257\r\n\r\n"},
          Row{"Airasca\r\n\r\n", 2, blank, airasca + end},
          Row{"Ala\t12\r\n\r\n", 2, "una tabulazione al posto degli spazi", ala + end},
          Row{"Ala     12,5\r\n\r\n", 2, comma, "Ala     12\r\n\r\n"},
          Row{"Ala     12,\r\n" + bo + end, 2, comma, "Ala     12\r\n" + bo + end},
          Row{"Ala     12\rBo\n\n", 3, blank, "Ala     12\r\n\n"},
          Row{"Ala 12\r\nBo 123\r\n\r\n", 2, place, ala + "Bo 123\r\n\r\n"},
          Row{"\tAirasca\r\n\r\n", 2, "una tabulazione al posto degli spazi", airasca + end},
          Row{"  Ala     12\r\n\r\nAla     12\r\n\r\n", 0, "", "  Ala     12\r\n\r\nAla     12\r\n\r\n"},
          Row{"Airasca   12345\r\n\r\n", 2, place, airasca + end},
          Row{"Airasca   alta\r\n" + ala + end, 2, "l'altitudine non è un numero", airasca + ala + end},
          Row{"Al a    12\r\n\r\n", 2, "la riga non contiene soltanto nome e altitudine", ala + end},
          Row{"Torino\r\nTorino   240\r\n\r\n", 2, blank, "Torino   240\r\n\r\n"},
          Row{ala, 3, "manca la riga vuota prima della provincia che segue", ala + end},
          Row{ala + end + bo + "Ci      4\r\n\r\n", 4, "la riga segue la riga vuota che chiude la provincia",
              ala + bo + "Ci      4\r\n\r\n"},
          Row{unreached, 0, "", unreached}}) {
        SCOPED_TRACE(block);
        const std::string file = with_torino("Torino\r\n" + block);
        std::vector<std::string> faults;
        if (line > 0) faults.push_back(std::to_string(line) + " Torino: " + fault);
        EXPECT_EQ(faults_of(file), faults);
        EXPECT_TRUE(mended(file) == with_torino("Torino\r\n" + repaired));
    }
}

TEST(AltitudeCheck, MissingAndEmptyProvincesGetTheirBlock) {
    std::string file = sound_file();
    const std::string block = file.substr(0, file.find("Biella\r\n"));
    file.insert(0, "T");  // a wrong letter hides the whole block
    EXPECT_THAT(faults_of(file), ElementsAre("0 Torino: manca la riga con il nome della provincia"));
    EXPECT_EQ(mended(file), file + block);

    const std::string empty = with_torino("Torino\r\n\r\n");
    EXPECT_THAT(faults_of(empty), ElementsAre("1 Torino: la provincia non contiene comuni"));
    EXPECT_EQ(mended(empty), sound_file());
    EXPECT_EQ(faults_of("").size(), 103U);
}

TEST(AltitudeCheck, FileSavedInUtf8IsConverted) {
    for (const std::string mark : {"", "\xEF\xBB\xBF"}) {
        const std::string file = mark + from_code_page(sound_file());
        EXPECT_THAT(faults_of(file), ElementsAre("0 : il file è scritto in UTF-8 e non in Windows-1252"));
        EXPECT_EQ(mended(file), sound_file());
    }
}

/// Changes a few bytes or lines at random.
std::string mutated(std::string file, std::mt19937& random) {
    const auto below = [&](std::size_t n) { return random() % n; };
    static constexpr std::string_view bytes(",\t\r\n  9A\xEC\0", 10);
    for (std::size_t changes = 1 + below(40); changes > 0; --changes) {
        const std::string pieces[] = {{bytes[below(bytes.size())]}, "\r\nMilano\r\n", ""};
        const std::string copied = file.substr(below(file.size()), below(2000));
        const std::size_t piece = below(4), erased = below(2) * below(60);
        file.replace(below(file.size()), erased, piece < 3 ? pieces[piece] : copied);
    }
    return file;
}

TEST(RepairOfFile, LeavesNothingToStumbleOnWhateverTheFile) {
    std::mt19937 random(1996);
    for (int run = 0; run < 60 && !HasFailure(); ++run) {
        SCOPED_TRACE(run);
        std::string file = run == 0 ? built_in_altitude_file() : mutated(built_in_altitude_file(), random);
        if (run % 3 == 1) std::erase(file, '\n');
        if (run % 3 == 2) file.resize(file.size() / 2);
        const std::string sound = mended(file);
        EXPECT_THAT(faults_of(sound), testing::IsEmpty());
        EXPECT_TRUE(mended(sound) == sound);
        for (const std::string_view province : provinces())
            EXPECT_TRUE(municipalities_in(sound, province)) << province;
    }
}

}  // namespace
}  // namespace coltre
