#include <fstream>
#include <utility>

#include "site/built_in_altitudes.h"
#include "tests/site/altitude_directory.h"

namespace coltre {
namespace {

using OpenAltitudeFile = AltitudeDirectory;

// As if it was not waited for long enough.
TEST_F(OpenAltitudeFile, ThatIsWrittenAnewIsKeptWithWhatItsEditorStillWrites) {
    for (const std::string_view backup : {"", "first", "half of"}) {
        std::ofstream editor(path() / "altitudini.txt", std::ios::binary);
        editor << "half of" << std::flush;
        if (!backup.empty()) put("altitudini.bak", backup);
        EXPECT_TRUE(WriteAltitudeFile(text(), notices));
        EXPECT_EQ(std::exchange(notices.note, ""),
                  "Il file altitudini.txt è stato riscritto dalla tabella del programma; il precedente è "
                  "conservato come altitudini.bak.");
        editor << " an own table" << std::flush;
        EXPECT_EQ(content("altitudini.bak"), "half of an own table");
        EXPECT_EQ(content("altitudini.txt"), built_in_altitude_file());
    }
    EXPECT_EQ(content("altitudini.bak1"), "first");
}

}  // namespace
}  // namespace coltre
