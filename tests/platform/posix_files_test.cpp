#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>

#include "platform/file_replacement.h"
#include "platform/files.h"
#include "tests/support/temporary_directory.h"

namespace coltre {
namespace {

namespace fs = std::filesystem;

class PosixFiles : public testing::Test {
  protected:
    [[nodiscard]] fs::path at(const char* name) const { return directory.path() / name; }
    [[nodiscard]] std::string suite_path(const char* name) const { return directory.text() + "\\" + name; }
    TemporaryDirectory directory;
};

TEST_F(PosixFiles, AreFoundNameByName) {
    fs::create_directories(at("Lavori/Job001"));
    EXPECT_EQ(find_path(suite_path("lavori\\..\\LAVORI/JOB001")), at("Lavori/../Lavori/Job001"));
    // What does not exist is kept as written, behind what does.
    EXPECT_EQ(find_path(suite_path("lavori\\Nuovo\\Uno.txt")), at("Lavori/Nuovo/Uno.txt"));
    fs::current_path(directory.path());
    EXPECT_EQ(find_path("LAVORI\\Nuovo"), "Lavori/Nuovo");
    fs::current_path("/");
    EXPECT_TRUE(read_file("\\proc\\self\\status").value_or("").size() > 100);  // its size is given as 0
}

TEST_F(PosixFiles, AreTakenAsWrittenBeforeAnyOtherLetterCase) {
    for (const char* name : {"coltre.txt", "COLTRE.TXT", "Coltre.txt"})
        directory.put(name, name);
    EXPECT_EQ(read_file(suite_path("coltre.txt")), "coltre.txt");
    EXPECT_EQ(read_file(suite_path("Coltre.txt")), "Coltre.txt");
    EXPECT_EQ(read_file(suite_path("colTRE.txt")), "COLTRE.TXT");  // first in byte order
}

TEST_F(PosixFiles, AreNotReplacedThroughALinkThatSomebodyElsePutIntoADirectoryOpenToEverybody) {
    directory.put("Coltre.txt", "old");
    fs::create_symlink("Coltre.txt", at("link"));
    if (::lchown(at("link").c_str(), 65534, 65534) != 0) GTEST_SKIP() << "only the administrator can try";
    for (const auto& [mode, refused] : {std::pair{0777U, true}, {01777U, true}, {0775U, false}}) {
        fs::permissions(directory.path(), fs::perms{mode});
        EXPECT_EQ(FileReplacement(at("link")).failure().has_value(), refused) << mode;
    }
}

TEST_F(PosixFiles, AreReplacedThroughALinkAndOpenToThoseTheyWereOpenTo) {
    directory.put("Coltre.txt", "old");
    fs::permissions(at("Coltre.txt"), fs::perms{0640});
    fs::create_symlink("Coltre.txt", at("link"));
    FileReplacement file(at("link"));
    file.write("new");
    EXPECT_EQ(file.commit(), std::nullopt);
    EXPECT_TRUE(fs::is_symlink(at("link")));
    EXPECT_EQ(directory.content("link"), "new");
    EXPECT_EQ(fs::status(at("Coltre.txt")).permissions(), fs::perms{0640});
}

}  // namespace
}  // namespace coltre
