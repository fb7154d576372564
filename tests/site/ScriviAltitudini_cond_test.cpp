#include "site/ScriviAltitudini_cond.h"

#include <sys/resource.h>

#include <csignal>

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

TEST_F(WriteAltitudes, UnreadableFileIsMoved) {
    put("altitudini.txt", "own");
    std::filesystem::permissions(path() / "altitudini.txt", std::filesystem::perms::owner_write);
    if (content("altitudini.txt")) GTEST_SKIP() << "this user may read everything";
    EXPECT_TRUE(WriteAltitudeFile(text(), doors));
    std::filesystem::permissions(path() / "altitudini.bak", std::filesystem::perms::owner_read);
    EXPECT_EQ(content("altitudini.bak"), "own");
}

// A limit on the size of files stands in for a full disk: the write stops half way.
TEST_F(WriteAltitudes, StoppedHalfWayLeavesTheOldFile) {
    put("altitudini.txt", "own");
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{100000, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_FALSE(WriteAltitudeFile(text(), doors));
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    expect_ended_with("Errore di scrittura del file altitudini.txt .");
    EXPECT_EQ(content("altitudini.txt"), "own");
    EXPECT_THAT(files(), ElementsAre("altitudini.txt"));
}

}  // namespace
}  // namespace coltre
