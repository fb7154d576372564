#include "site/altitude_file.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <string>

#include "platform/files.h"
#include "site/built_in_altitudes.h"
#include "tests/site/altitude_directory.h"
#include "tests/support/fake_doors.h"

namespace coltre {
namespace {

using testing::ElementsAre;

const Message read_error{Icon::error, "Coltre", "Errore in lettura del file altitudine.txt ."};
const Message write_error{Icon::error, "Coltre", "Errore di scrittura del file altitudini.txt ."};

class AltitudeFile : public testing::Test, public AltitudeDirectory {
  protected:
    FakeDoors fake;
    Doors doors = fake.doors();

    std::optional<MunicipalityList> fill(std::string_view province) {
        return FillMunicipalities(text(), province, doors);
    }
    std::optional<std::string> read(std::string_view province, std::string_view municipality) {
        return ReadAltitude(text(), province, municipality, doors);
    }
    void expect_ended_with(const Message& message) const {
        EXPECT_THAT(fake.shown, ElementsAre(message));
        EXPECT_EQ(fake.ended, 1);
    }
};

TEST_F(AltitudeFile, IsWrittenWhenItIsMissing) {
    const auto list = fill("Torino");
    ASSERT_TRUE(list);
    EXPECT_EQ(list->names.size(), 315U);
    EXPECT_EQ(list->names[1], "Aglie'");
    EXPECT_EQ(list->altitude, "239");
    EXPECT_EQ(content("altitudini.txt"), built_in_altitude_file());
    EXPECT_THAT(files(), ElementsAre("altitudini.txt")) << "no backup of nothing";
    EXPECT_EQ(read("Torino", "Sestriere"), "2035");
    EXPECT_EQ(read("Pescara", "Pescara"), "4");
    EXPECT_EQ(read("Forlì", "Forlì"), "34");
    EXPECT_EQ(read("Oristano", "Zerfaliu"), "15");
    EXPECT_EQ(read("Trento", "Samone"), "673") << "not its namesake in Torino";
    EXPECT_THAT(fill("Aosta")->names, testing::Contains("Châtillon"));
    EXPECT_TRUE(fake.shown.empty());
}

TEST_F(AltitudeFile, SearchRunsOnWithinTheLastBlockAlone) {
    EXPECT_EQ(read("Oristano", "Torino"), "15") << "the file's last line";
    EXPECT_TRUE(fake.shown.empty());
    EXPECT_FALSE(read("Sassari", "Zerfaliu")) << "the empty line behind Sassari has no blank";
    expect_ended_with(read_error);
}

TEST_F(AltitudeFile, NameOutsideTheCodePageIsNoQuestionMark) {
    put("altitudini.txt", "Torino\r\nFo? 77\r\nTorino 239\r\n");
    EXPECT_EQ(read("Torino", "Foś"), "239");
}

TEST_F(AltitudeFile, EndsAtAProvinceThatTheTableCannotGive) {
    for (const std::string_view province : {"Vicenza", "Oristano", "Torinoo", ""}) {
        put("altitudini.txt", "Torino\r\n");
        fake.shown.clear();
        fake.ended = 0;
        EXPECT_FALSE(fill(province)) << province;
        expect_ended_with(read_error);
        EXPECT_EQ(content("altitudini.txt"), built_in_altitude_file()) << "written anew before";
    }
}

TEST_F(AltitudeFile, EditedFileIsReadAndLeftAlone) {
    const std::string file =
        "Varese\r\nVarese   400\r\nVarese   401\r\n\r\n"
        "Varese\r\nVarese   500\r\n\r\n";
    put("altitudini.txt", file);
    const auto list = fill("Varese");
    ASSERT_TRUE(list);
    EXPECT_THAT(list->names, ElementsAre("Varese", "Varese"));
    EXPECT_EQ(list->altitude, "400");
    EXPECT_EQ(content("altitudini.txt"), file);
}

struct Reading {
    std::string name;
    std::string file;
    std::string altitude = {};  ///< of Ala, in Torino
};

class AltitudeReading : public AltitudeFile, public testing::WithParamInterface<Reading> {};

TEST_P(AltitudeReading, TakesTheLastFourCharacters) {
    put("altitudini.txt", GetParam().file);
    const auto list = fill("Torino");
    ASSERT_TRUE(list);
    EXPECT_THAT(list->names, testing::Contains("Ala"));
    EXPECT_EQ(read("Torino", "Ala"), GetParam().altitude);
    EXPECT_TRUE(fake.shown.empty());
    EXPECT_EQ(content("altitudini.txt"), GetParam().file);
}

INSTANTIATE_TEST_SUITE_P(
    Files, AltitudeReading,
    testing::Values(Reading{"Lf", "Torino\nBo   1\nAla   12\n\n", "12"},
                    Reading{"Cr", "Torino\rBo   1\rAla   12\r\r", "12"},
                    Reading{"BlanksAtTheStart", "  Torino\r\n   Ala   12\r\n  \r\n", "12"},
                    Reading{"Comma", "x,Torino\r\nBo   1,Ala   12,\r\n33543\r\n", "12"},
                    Reading{"HeaderWithinWords",
                            "Torino2\r\nATorino\r\nTorino \r\nTorino\r\nAla   12\r\n\r\n", "12"},
                    Reading{"FiveDigits", "Torino\r\nAla   12345\r\n\r\n", "2345"},
                    Reading{"BlanksAtTheEnd", "Torino\r\nAla   123  \r\n\r\n", "23"},
                    Reading{"EightBitCharacters", "Torino\r\nAla   1\xB0\xB0\r\n\r\n", "1°°"},
                    Reading{"LongLine", "Torino\r\nAla" + std::string(1 << 20, ' ') + "12\r\n\r\n", "12"}),
    [](const auto& test_case) { return test_case.param.name; });

class DamagedAltitudeFile : public AltitudeFile, public testing::WithParamInterface<Reading> {};

TEST_P(DamagedAltitudeFile, RepairsItselfAndTheOldOneSurvives) {
    put("altitudini.txt", GetParam().file);
    const auto list = fill("Torino");
    ASSERT_TRUE(list);
    EXPECT_EQ(list->names.size(), 315U);
    EXPECT_TRUE(fake.shown.empty());
    EXPECT_EQ(content("altitudini.txt"), built_in_altitude_file());
    EXPECT_EQ(content("altitudini.bak"), GetParam().file);
    EXPECT_THAT(files(), ElementsAre("altitudini.bak", "altitudini.txt"));
}

INSTANTIATE_TEST_SUITE_P(Files, DamagedAltitudeFile,
                         testing::Values(Reading{"Empty", ""}, Reading{"HeaderAlone", "Torino"},
                                         Reading{"CutInTheBlock", "Torino\r\nTorino   240\r\nAgl"},
                                         Reading{"EmptyBlock", "Torino\r\n\r\nTorino   240\r\n\r\n"},
                                         Reading{"OtherCase", "TORINO\r\nTorino   240\r\n\r\n"},
                                         Reading{"NoHeader", std::string(100000, '\0')}),
                         [](const auto& test_case) { return test_case.param.name; });

TEST_F(AltitudeFile, DirectoryIsFoundWhateverItsCase) {
    std::filesystem::create_directory(path() / "Neve");
    EXPECT_TRUE(FillMunicipalities(text() + "\\NEVE", "Torino", doors));
    EXPECT_THAT(files(), ElementsAre("Neve"));
}

TEST_F(AltitudeFile, EndsOnceWhenItCannotBeWritten) {
    EXPECT_FALSE(FillMunicipalities(text() + "\\altrove", "Torino", doors));
    expect_ended_with(write_error);
    fake.shown.clear();
    fake.ended = 0;
    std::filesystem::create_directory(path() / "altitudini.txt");
    EXPECT_FALSE(read("Torino", "Torino"));
    expect_ended_with(write_error);
}

}  // namespace
}  // namespace coltre
