#include "platform/files.h"

#include <gmock/gmock.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <thread>

#include "platform/file_replacement.h"
#include "tests/support/temporary_directory.h"

namespace coltre {
namespace {

namespace fs = std::filesystem;

class Files : public testing::Test {
  protected:
    [[nodiscard]] fs::path at(const std::string& name) const { return directory.path() / to_path(name); }
    [[nodiscard]] std::string suite_path(const std::string& name) const {
        return directory.text() + "\\" + name;
    }
    TemporaryDirectory directory;
};

TEST_F(Files, AreFoundWhateverTheirLetterCase) {
    fs::create_directories(at("Lavori/Citt\u00C0/Job001"));
    EXPECT_TRUE(
        fs::equivalent(find_path(suite_path("lavori/CITT\u00C0\\JOB001")), at("Lavori/Citt\u00C0/Job001")));
    EXPECT_TRUE(is_directory(suite_path("lavori\\")));
    EXPECT_FALSE(is_directory(suite_path("lavor")));
    EXPECT_EQ(suite_notation("/home/c//"), "\\home\\c");
    EXPECT_EQ(suite_notation("/"), "\\");
}

TEST_F(Files, AreReadWhole) {
    const std::string bytes("\0\xFF\r\n\x1A", 5);
    directory.put("bytes", bytes);
    EXPECT_EQ(read_file(suite_path("bytes")), bytes);
    directory.put("saved", "half done");
    std::thread editor([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        directory.put("saved", "full size");
    });
    EXPECT_EQ(read_content_at_rest(suite_path("saved")).bytes, "full size") << "as long as before";
    editor.join();
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
        EXPECT_THAT(directory.files(), testing::ElementsAre("Coltre.txt"));
    }
};

TEST_F(Replacement, KeepsTheOldFileUntilTheCommit) {
    for (const bool committed : {false, true}) {
        {
            FileReplacement file(find_path(suite_path("coltre.TXT")));
            EXPECT_TRUE(fs::equivalent(file.target(), at("Coltre.txt")));
            file.write("ne");
            file.write("w");
            EXPECT_EQ(file.complete(), std::nullopt);
            EXPECT_EQ(directory.content("Coltre.txt"), "old");
            EXPECT_FALSE(committed && file.commit());
        }
        expect_left(committed ? "new" : "old");
    }
}

TEST_F(Replacement, OfOneFileByTwoWritersHasATemporaryEach) {
    {
        FileReplacement first(at("Coltre.txt"));
        FileReplacement second(at("Coltre.txt"));
        first.write("first");
        second.write("second");
        EXPECT_THAT(directory.files(), testing::SizeIs(3));
        EXPECT_EQ(second.commit(), std::nullopt);
        EXPECT_EQ(first.commit(), std::nullopt);
    }
    expect_left("first");
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

}  // namespace
}  // namespace coltre
