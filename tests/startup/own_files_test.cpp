#include "startup/own_files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "tests/support/temporary_directory.h"

namespace coltre {
namespace {

namespace fs = std::filesystem;

TEST(OwnFiles, StayBesideTheProgramUnlessItsUserMayNotWriteThere) {
    const TemporaryDirectory program;
    const TemporaryDirectory documents;
    const std::string own = program.text();
    const std::string users = documents.text() + "\\Coltre";
    const auto expect = [&](const std::string& altitudes, const std::string& reports) {
        const OwnFiles files = own_files(own, users);
        EXPECT_EQ(files.altitudes, altitudes);
        EXPECT_EQ(files.reports, reports);
    };

    expect(own, own);
    fs::permissions(program.path(), fs::perms::owner_write, fs::perm_options::remove);
    EXPECT_EQ(own_files(own, "").reports, own) << "no documents directory";
    expect(users, users);  // no table yet: it is written where it may be
    EXPECT_TRUE(fs::is_empty(documents.path()));

    fs::permissions(program.path(), fs::perms::owner_write, fs::perm_options::add);
    std::ofstream(program.path() / "altitudini.txt") << "common";
    fs::permissions(program.path(), fs::perms::owner_write, fs::perm_options::remove);
    expect(own, users);

    fs::create_directory(documents.path() / "Coltre");
    const fs::path corrected = documents.path() / "Coltre/altitudini.txt";
    fs::create_symlink(corrected, corrected);
    expect(users, users);  // nothing can be told of it: the common one does not take its place
    fs::remove(corrected);
    std::ofstream(corrected) << "corrected";
    expect(users, users);
    fs::permissions(program.path(), fs::perms::owner_write, fs::perm_options::add);
    expect(own, own);
}

}  // namespace
}  // namespace coltre
