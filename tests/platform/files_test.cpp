#include "platform/files.h"

#include <gmock/gmock.h>

#include <filesystem>

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
    EXPECT_TRUE(read_file("\\proc\\self\\status").value_or("").size() > 100);  // its size is told as 0
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
            EXPECT_TRUE(file.complete());
            EXPECT_EQ(directory.content("Coltre.txt"), "old");
            EXPECT_TRUE(!committed || file.commit());
        }
        expect_left(committed ? "new" : "old");
    }
    EXPECT_EQ(fs::status(at("Coltre.txt")).permissions(), fs::perms{0640});
}

TEST_F(Replacement, WritesTwoAtATimeAndThroughALink) {
    fs::create_symlink("Coltre.txt", at("link"));
    FileReplacement first(find_path(suite_path("link")));
    FileReplacement second(find_path(suite_path("Coltre.txt")));
    first.write("first");
    second.write("second");
    EXPECT_TRUE(first.commit());
    EXPECT_EQ(directory.content("Coltre.txt"), "first");
    EXPECT_TRUE(second.commit());
    EXPECT_TRUE(fs::is_symlink(at("link")));
    EXPECT_EQ(directory.content("link"), "second");
}

}  // namespace
}  // namespace coltre
