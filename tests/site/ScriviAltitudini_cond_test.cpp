#include "site/ScriviAltitudini_cond.h"

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>

#include "site/built_in_altitudes.h"
#include "tests/site/altitude_directory.h"
#include "tests/support/fake_doors.h"

namespace coltre {
namespace {

using testing::ElementsAre;

class WriteAltitudes : public testing::Test, public AltitudeDirectory {
  protected:
    FakeDoors fake;

    bool write() {
        Doors doors = fake.doors();
        return WriteAltitudeFile(text(), doors);
    }
};

TEST_F(WriteAltitudes, NoBackupIsEverLost) {
    for (const std::string_view own : {"first", "second", "third", "third"}) {
        put("altitudini.txt", own);
        EXPECT_TRUE(write());
        EXPECT_EQ(content("altitudini.txt"), built_in_altitude_file());
        EXPECT_EQ(content("altitudini.bak"), own);
    }
    EXPECT_EQ(content("altitudini.bak1"), "first");
    EXPECT_EQ(content("altitudini.bak2"), "second");
    EXPECT_THAT(files(),
                ElementsAre("altitudini.bak", "altitudini.bak1", "altitudini.bak2", "altitudini.txt"));
    EXPECT_TRUE(write());
    EXPECT_EQ(content("altitudini.bak"), "third") << "the built-in table itself needs no backup";
    EXPECT_TRUE(fake.shown.empty());
}

TEST_F(WriteAltitudes, UnreadableFileIsMoved) {
    put("altitudini.txt", "own");
    std::filesystem::permissions(path() / "altitudini.txt", std::filesystem::perms::owner_write);
    if (content("altitudini.txt")) GTEST_SKIP() << "this user may read everything";
    EXPECT_TRUE(write());
    std::filesystem::permissions(path() / "altitudini.bak", std::filesystem::perms::owner_read);
    EXPECT_EQ(content("altitudini.bak"), "own");
    EXPECT_THAT(files(), ElementsAre("altitudini.bak", "altitudini.txt"));
}

// A limit on the size of files stands in for a full disk: the write stops half way.
TEST_F(WriteAltitudes, StoppedHalfWayLeavesTheOldFile) {
    put("altitudini.txt", "own");
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{100000, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_FALSE(write());
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_THAT(fake.shown,
                ElementsAre(Message{Icon::error, "Coltre", "Errore di scrittura del file altitudini.txt ."}));
    EXPECT_EQ(fake.ended, 1);
    EXPECT_EQ(content("altitudini.txt"), "own");
    EXPECT_THAT(files(), ElementsAre("altitudini.txt"));
}

}  // namespace
}  // namespace coltre
