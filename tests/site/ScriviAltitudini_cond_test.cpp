#include "site/ScriviAltitudini_cond.h"

#include "site/built_in_altitudes.h"
#include "tests/site/altitude_directory.h"

namespace coltre {
namespace {

using testing::ElementsAre;

using WriteAltitudes = AltitudeDirectory;

TEST_F(WriteAltitudes, NoBackupIsEverLost) {
    for (const std::string_view own : {"first", "second", "third", "third"}) {
        put("altitudini.txt", own);
        EXPECT_TRUE(WriteAltitudeFile(text(), doors));
        EXPECT_EQ(content("altitudini.txt"), built_in_altitude_file());
        EXPECT_EQ(content("altitudini.bak"), own);
    }
    EXPECT_EQ(content("altitudini.bak1"), "first");
    EXPECT_EQ(content("altitudini.bak2"), "second");
    EXPECT_THAT(files(),
                ElementsAre("altitudini.bak", "altitudini.bak1", "altitudini.bak2", "altitudini.txt"));
    EXPECT_TRUE(WriteAltitudeFile(text(), doors));
    EXPECT_EQ(content("altitudini.bak"), "third") << "the built-in table itself needs no backup";
}

}  // namespace
}  // namespace coltre
