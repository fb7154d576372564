#include "site/municipalities.h"

#include <chrono>
#include <thread>

#include "site/ScriviAltitudini_cond.h"
#include "site/built_in_altitudes.h"
#include "tests/site/altitude_directory.h"

namespace coltre {
namespace {

using testing::ElementsAre;

class AltitudeFile : public AltitudeDirectory {
  protected:
    std::optional<std::vector<std::string>> fill(std::string_view province) {
        return FillMunicipalities(text(), province, notices);
    }
    std::optional<std::string> read(std::string_view province, std::string_view municipality) {
        return ReadAltitude(text(), province, municipality, notices);
    }
    const std::string read_error = "Errore in lettura del file altitudine.txt .";
};

TEST_F(AltitudeFile, IsWrittenWhenItIsMissingAndSearchedInTheLastBlockToItsEnd) {
    const auto list = fill("Torino");
    ASSERT_TRUE(list);
    EXPECT_EQ(list->size(), 315U);
    EXPECT_EQ(read("Torino", "Torino"), "239");
    EXPECT_EQ(content("altitudini.txt"), built_in_altitude_file());
    EXPECT_THAT(files(), ElementsAre("altitudini.txt")) << "no backup of nothing";
    EXPECT_EQ(read("Forlì", "Forlì"), "34");
    EXPECT_EQ(read("Trento", "Samone"), "673") << "not its namesake in Torino";
    EXPECT_THAT(*fill("Aosta"), testing::Contains("Châtillon"));
    EXPECT_EQ(read("Oristano", "Torino"), "15") << "the file's last line";
    EXPECT_TRUE(notices.messages.empty());
    EXPECT_FALSE(read("Sassari", "Zerfaliu")) << "the empty line behind Sassari has no blank";
    expect_ended_with(read_error);
}

TEST_F(AltitudeFile, EndsAtAProvinceThatTheTableCannotGive) {
    for (const std::string_view province : {"Vicenza", "Oristano", "Torinoo", ""}) {
        put("altitudini.txt", "Torino\r\n");
        EXPECT_FALSE(fill(province)) << province;
        expect_ended_with(read_error);
        EXPECT_EQ(content("altitudini.txt"), built_in_altitude_file()) << "written anew before";
    }
}

TEST_F(AltitudeFile, FirstOfTwoLinesAndOfTwoBlocksCounts) {
    put("altitudini.txt", "Varese\r\nVarese   400\r\nVarese   401\r\n\r\nVarese\r\nBo   500\r\n\r\n");
    const auto list = fill("Varese");
    ASSERT_TRUE(list);
    EXPECT_THAT(*list, ElementsAre("Varese", "Varese"));
    EXPECT_EQ(read("Varese", "Varese"), "400");
    put("altitudini.txt", "Varese\r\nFo? 77\r\nVarese 239\r\n");
    EXPECT_EQ(read("Varese", "Foś"), "239") << "a name outside the code page is no question mark";
}

TEST_F(AltitudeFile, EditedFileIsReadByItsLastFourCharactersAndLeftAlone) {
    for (const auto& [file, altitude] : std::vector<std::pair<std::string, std::string>>{
             {"Torino\nBo   1\nAla   12\n\n", "12"},
             {"Torino\rBo   1\rAla   12\r\r", "12"},
             {"  Torino\r\n   Ala   12\r\n  \r\n", "12"},
             {"x,Torino\r\nBo   1,Ala   12,\r\n33543\r\n", "12"},
             {"Torino2\r\nATorino\r\nTorino \r\nTorino\r\nAla   12\r\n\r\n", "12"},
             {"Torino\r\nAla   12345\r\n\r\n", "2345"},
             {"Torino\r\nAla   123  \r\n\r\n", "23"},
             {"Torino\r\nAla   1\xB0\xB0\r\n\r\n", "1°°"},
             {"Torino\r\nAla" + std::string(1 << 20, ' ') + "12\r\n\r\n", "12"}}) {
        SCOPED_TRACE(file.substr(0, 60));
        put("altitudini.txt", file);
        EXPECT_THAT(fill("Torino").value(), testing::Contains("Ala"));
        EXPECT_EQ(read("Torino", "Ala"), altitude);
        EXPECT_EQ(content("altitudini.txt"), file);
    }
}

TEST_F(AltitudeFile, DamagedFileRepairsItselfAndTheOldOneSurvives) {
    for (const std::string& file :
         {std::string(), std::string("Torino\r\nTorino   240\r\nAgl"),
          std::string("Torino\r\n\r\nTorino   240\r\n\r\n"), std::string("TORINO\r\nTorino   240\r\n\r\n"),
          std::string(100000, '\0')}) {
        SCOPED_TRACE(file.substr(0, 60));
        put("altitudini.txt", file);
        EXPECT_EQ(fill("Torino").value().size(), 315U);
        EXPECT_EQ(content("altitudini.txt"), built_in_altitude_file());
        EXPECT_EQ(content("altitudini.bak"), file);
    }
}

TEST_F(AltitudeFile, ThatIsBeingSavedIsWaitedFor) {
    const std::string saved = "Torino\r\nTorino   240\r\n\r\nCuneo\r\nCuneo   999\r\n\r\n";
    put("altitudini.txt", saved.substr(0, 20));
    std::thread editor([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        put("altitudini.txt", saved);
    });
    EXPECT_EQ(read("Cuneo", "Cuneo"), "999");
    editor.join();
    EXPECT_EQ(content("altitudini.txt"), saved);
    EXPECT_THAT(files(), ElementsAre("altitudini.txt"));
    EXPECT_EQ(notices.note, "");
}

TEST_F(AltitudeFile, WrittenAnewLosesNoBackup) {
    for (const std::string_view own : {"first", "second", "third", "third"}) {
        put("altitudini.txt", own);
        EXPECT_TRUE(WriteAltitudeFile(text(), notices));
        EXPECT_EQ(content("altitudini.bak"), own);
    }
    EXPECT_TRUE(WriteAltitudeFile(text(), notices));
    EXPECT_EQ(content("altitudini.bak"), "third") << "the built-in table itself needs no backup";
    EXPECT_EQ(content("altitudini.bak1"), "first");
    EXPECT_EQ(content("altitudini.bak2"), "second");
    EXPECT_EQ(files().size(), 4U);
}

}  // namespace
}  // namespace coltre
