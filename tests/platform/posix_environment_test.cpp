#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "platform/environment.h"
#include "platform/file_replacement.h"
#include "platform/files.h"
#include "tests/support/temporary_directory.h"

namespace coltre {
namespace {

TEST(DocumentsDirectory, IsTheOneOfTheUsersSettings) {
    const TemporaryDirectory home;
    ASSERT_EQ(::setenv("HOME", home.path().c_str(), 1), 0);
    ASSERT_EQ(::unsetenv("XDG_CONFIG_HOME"), 0);
    EXPECT_EQ(documents_directory(), home.text() + "\\Documents");

    std::filesystem::create_directory(home.path() / ".config");
    std::ofstream settings(home.path() / ".config/user-dirs.dirs");
    settings << "# XDG_DOCUMENTS_DIR=\"/no\"\nXDG_DESKTOP_DIR=\"$HOME/Scrivania\"\n"
             << "XDG_DOCUMENTS_DIR=\"$HOME/I miei documenti\"\n";
    settings.close();
    EXPECT_EQ(documents_directory(), home.text() + "\\I miei documenti");
}

TEST(UsersDirectory, ComesWithItsFirstFileAndNoOtherDoes) {
    const TemporaryDirectory home;
    ASSERT_EQ(::setenv("HOME", home.path().c_str(), 1), 0);
    ASSERT_EQ(::unsetenv("XDG_CONFIG_HOME"), 0);
    EXPECT_EQ(FileReplacement(home.path() / "Documents/Altro/coltre.txt").commit(), "la cartella non esiste");
    EXPECT_TRUE(home.files().empty());
    EXPECT_EQ(FileReplacement(find_path(users_directory() + "\\coltre.txt")).commit(), std::nullopt);
    EXPECT_TRUE(std::filesystem::exists(home.path() / "Documents/Coltre/coltre.txt"));
}

}  // namespace
}  // namespace coltre
