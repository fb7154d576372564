#include "platform/files.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <thread>

#include "platform/file_replacement.h"
#include "tests/support/temporary_directory.h"

namespace coltre {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

class Files : public testing::Test {
  protected:
    [[nodiscard]] fs::path at(const std::string& name) const { return directory.path() / name; }
    [[nodiscard]] std::string suite_path(const std::string& name) const {
        return directory.text() + "\\" + name;
    }
    TemporaryDirectory directory;
};

TEST_F(Files, AreFoundWhateverTheirLetterCase) {
    fs::create_directories(at("Lavori/Citt\u00C0/Job001"));
    EXPECT_EQ(find_path(suite_path("lavori/CITT\u00C0\\JOB001")), at("Lavori/Citt\u00C0/Job001"));
    EXPECT_EQ(find_path(suite_path("lavori\\..\\LAVORI")), at("Lavori/../Lavori"));
    // What does not exist is kept as written, behind what does.
    EXPECT_EQ(find_path(suite_path("lavori\\Nuovo\\Uno.txt")), at("Lavori/Nuovo/Uno.txt"));
    fs::current_path(directory.path());
    EXPECT_EQ(find_path("LAVORI\\Nuovo"), "Lavori/Nuovo");
    fs::current_path("/");
    EXPECT_TRUE(is_directory(suite_path("lavori\\")));
    EXPECT_FALSE(is_directory(suite_path("lavor")));
    EXPECT_EQ(suite_notation("/home/c//"), "\\home\\c");
    EXPECT_EQ(suite_notation("/"), "\\");
}

TEST_F(Files, AreTakenAsWrittenBeforeAnyOtherLetterCase) {
    for (const char* name : {"coltre.txt", "COLTRE.TXT", "Coltre.txt"})
        directory.put(name, name);
    EXPECT_EQ(read_file(suite_path("coltre.txt")), "coltre.txt");
    EXPECT_EQ(read_file(suite_path("Coltre.txt")), "Coltre.txt");
    EXPECT_EQ(read_file(suite_path("colTRE.txt")), "COLTRE.TXT");  // first in byte order
}

TEST_F(Files, AreReadWhole) {
    const std::string bytes("\0\xFF\r\n\x1A", 5);
    directory.put("bytes", bytes);
    EXPECT_EQ(read_file(suite_path("bytes")), bytes);
    directory.put("saved", "half");
    std::thread editor([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        directory.put("saved", "half and half");
    });
    EXPECT_EQ(read_content_at_rest(suite_path("saved")).bytes, "half and half");
    editor.join();
    EXPECT_TRUE(read_file("\\proc\\self\\status").value_or("").size() > 100);  // its size is given as 0
}

TEST_F(Files, GiveTheirFirstLine) {
    for (const auto& [bytes, line] : {std::pair{"", ""}, std::pair{"a\rb", "a"}, std::pair{"\r\nsecond", ""},
                                      std::pair{"  Forl\xEC\x80 \n", "  Forlì€ "}}) {
        directory.put("dirlav", bytes);
        EXPECT_EQ(read_first_line(suite_path("DIRLAV")), line);
    }
}

TEST(FileLine, EndsWithCrLfAlone) {
    EXPECT_EQ(file_line("due\r\nrighe €"), "due??righe \x80\r\n");
}

class Replacement : public Files {
  protected:
    void SetUp() override { directory.put("Coltre.txt", "old"); }
    /// Only the file is there, with these bytes.
    void expect_left(const std::string& bytes) const {
        EXPECT_EQ(directory.content("Coltre.txt"), bytes);
        EXPECT_THAT(directory.files(), ElementsAre("Coltre.txt"));
    }
};

TEST_F(Replacement, KeepsTheOldFileUntilTheCommit) {
    fs::permissions(at("Coltre.txt"), fs::perms{0640});
    for (const bool committed : {false, true}) {
        {
            FileReplacement file(find_path(suite_path("coltre.TXT")));
            EXPECT_EQ(file.target(), at("Coltre.txt"));
            file.write("ne");
            file.write("w");
            EXPECT_EQ(file.complete(), std::nullopt);
            EXPECT_EQ(directory.content("Coltre.txt"), "old");
            EXPECT_FALSE(committed && file.commit());
        }
        expect_left(committed ? "new" : "old");
    }
    EXPECT_EQ(fs::status(at("Coltre.txt")).permissions(), fs::perms{0640});
}

TEST_F(Replacement, WaitsItsTurnInADirectory) {
    auto first = std::make_optional<DirectoryLock>(directory.path());
    std::atomic<bool> held = true;
    std::thread other([&] {
        const DirectoryLock second(directory.path());
        EXPECT_FALSE(held);
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    held = false;
    first.reset();
    other.join();
}

TEST_F(Replacement, FollowsNoLinkThatSomebodyElsePutIntoADirectoryOpenToEverybody) {
    fs::create_symlink("Coltre.txt", at("link"));
    if (::lchown(at("link").c_str(), 65534, 65534) != 0) GTEST_SKIP() << "only the administrator can try";
    for (const auto& [mode, refused] : {std::pair{0777U, true}, {01777U, true}, {0775U, false}}) {
        fs::permissions(directory.path(), fs::perms{mode});
        EXPECT_EQ(FileReplacement(at("link")).failure().has_value(), refused) << mode;
    }
}

TEST_F(Replacement, OfNothingLeavesWhatHasAppearedMeanwhile) {
    fs::remove(at("Coltre.txt"));
    FileReplacement late(at("Coltre.txt"));
    directory.put("Coltre.txt", "of another program");
    late.write("late");
    EXPECT_TRUE(late.commit_as_new());
    expect_left("of another program");
    fs::remove(at("Coltre.txt"));
    EXPECT_EQ(FileReplacement(at("Coltre.txt")).commit_as_new(), std::nullopt);
    expect_left("");
}

TEST(SystemFailure, SaysTheReasonInItalian) {
    EXPECT_EQ(system_failure(0), std::nullopt);
    for (const auto& [error, reason] : {std::pair{EDQUOT, "la quota disco dell'utente è esaurita"},
                                        {EIO, "il disco segnala un errore"},
                                        {EMFILE, "troppi file sono aperti"},
                                        {ESTALE, "la cartella di rete non risponde"},
                                        {EXDEV, "errore di sistema 18"}})
        EXPECT_EQ(system_failure(error), reason);
}

TEST_F(Replacement, WritesTwoAtATimeAndThroughALink) {
    fs::create_symlink("Coltre.txt", at("link"));
    FileReplacement first(find_path(suite_path("link")));
    FileReplacement second(find_path(suite_path("Coltre.txt")));
    first.write("first");
    second.write("second");
    EXPECT_EQ(first.commit(), std::nullopt);
    EXPECT_EQ(directory.content("Coltre.txt"), "first");
    EXPECT_EQ(second.commit(), std::nullopt);
    EXPECT_TRUE(fs::is_symlink(at("link")));
    EXPECT_EQ(directory.content("link"), "second");
}

}  // namespace
}  // namespace coltre
