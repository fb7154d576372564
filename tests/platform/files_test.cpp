#include "platform/files.h"

#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/temporary_directory.h"

namespace coltre {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class Files : public testing::Test {
  protected:
    void write(const std::string& name, const std::string& bytes) const {
        std::ofstream(at(name), std::ios::binary) << bytes;
    }
    [[nodiscard]] std::string bytes_of(const std::string& name) const {
        std::ifstream file(at(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    [[nodiscard]] fs::path at(const std::string& name) const { return directory.path() / name; }
    [[nodiscard]] std::string suite_path(const std::string& name) const {
        return directory.text() + "\\" + name;
    }
    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> found;
        for (const auto& entry : fs::directory_iterator(directory.path()))
            found.push_back(entry.path().filename().string());
        return found;
    }

    TemporaryDirectory directory;
};

TEST_F(Files, AreFoundWhateverTheirLetterCase) {
    fs::create_directories(at("Lavori/Citt\u00C0/Job001"));
    EXPECT_EQ(find_path(suite_path("LAVORI\\citt\u00E0\\job001")), at("Lavori/Citt\u00C0/Job001"));
    EXPECT_EQ(find_path(suite_path("lavori/CITT\u00C0\\JOB001")), at("Lavori/Citt\u00C0/Job001"));
    EXPECT_EQ(find_path(suite_path("lavori\\..\\LAVORI")), at("Lavori/../Lavori"));
    // What does not exist is kept as written, behind what does.
    EXPECT_EQ(find_path(suite_path("lavori\\Nuovo\\Uno.txt")), at("Lavori/Nuovo/Uno.txt"));
    EXPECT_TRUE(is_directory(suite_path("lavori")));
    EXPECT_TRUE(is_directory(suite_path("lavori\\")));
    EXPECT_FALSE(is_directory(suite_path("lavor")));
    EXPECT_FALSE(is_directory(""));
}

TEST_F(Files, AreTakenAsWrittenBeforeAnyOtherLetterCase) {
    write("coltre.txt", "lower");
    write("COLTRE.TXT", "upper");
    write("Coltre.txt", "mixed");
    EXPECT_EQ(read_file(suite_path("coltre.txt")), "lower");
    EXPECT_EQ(read_file(suite_path("Coltre.txt")), "mixed");
    EXPECT_EQ(read_file(suite_path("colTRE.txt")), "upper");  // first in byte order
}

TEST_F(Files, InADirectoryThatIsRelative) {
    const fs::path before = fs::current_path();
    fs::current_path(directory.path());
    write("Dirlav", "x");
    EXPECT_EQ(read_file("DIRLAV"), "x");
    EXPECT_EQ(read_file(".\\DIRLAV"), "x");
    fs::current_path(before);
}

TEST_F(Files, HaveNoSeparatorAtTheEndOfADirectory) {
    EXPECT_EQ(suite_notation("/home/a b/c"), "\\home\\a b\\c");
    EXPECT_EQ(suite_notation("/home/c//"), "\\home\\c");
    EXPECT_EQ(suite_notation("/"), "\\");
    EXPECT_EQ(suite_notation(""), "");
}

TEST_F(Files, AreReadWhole) {
    const std::string large(1000003, 'x');
    write("large", large);
    write("empty", "");
    write("bytes", std::string("\0\xFF\r\n\x1A", 5));
    EXPECT_EQ(read_file(suite_path("large")), large);
    EXPECT_EQ(read_file(suite_path("empty")), "");
    EXPECT_EQ(read_file(suite_path("bytes")), std::string("\0\xFF\r\n\x1A", 5));
    EXPECT_TRUE(read_file("\\proc\\self\\status").value_or("").size() > 100);  // its size is told as 0
}

TEST_F(Files, AreRefusedWhereTheyAreNone) {
    fs::create_directory(at("directory"));
    ASSERT_EQ(::mkfifo(at("pipe").c_str(), 0600), 0);  // opening it would wait for a writer
    fs::create_symlink("nowhere", at("dangling"));
    for (const char* name : {"missing", "directory", "pipe", "dangling", "missing\\file"}) {
        EXPECT_EQ(read_file(suite_path(name)), std::nullopt) << name;
        EXPECT_EQ(read_first_line(suite_path(name)), std::nullopt) << name;
    }
    EXPECT_EQ(read_file("\\dev\\zero"), std::nullopt);
}

TEST_F(Files, GiveTheirFirstLine) {
    const std::pair<std::string, std::string> cases[] = {
        {"", ""},
        {"a\r\nb\r\n", "a"},
        {"a\nb", "a"},
        {"a\rb", "a"},
        {"no end", "no end"},
        {"\r\nsecond", ""},
        {"  Forl\xEC\x80 \n", "  Forlì€ "},
        {std::string(70000, 'x'), std::string(65536, 'x')},
    };
    for (const auto& [bytes, line] : cases) {
        write("dirlav", bytes);
        EXPECT_EQ(read_first_line(suite_path("DIRLAV")), line);
    }
}

TEST(FileLine, EndsWithCrLfAlone) {
    EXPECT_EQ(file_line("Zona = 1 €"), "Zona = 1 \x80\r\n");
    EXPECT_EQ(file_line("due\r\nrighe"), "due??righe\r\n");
    EXPECT_EQ(file_line(""), "\r\n");
}

TEST_F(Files, TakeTheNameOfAnother) {
    write("new", "new");
    write("old", "old");
    EXPECT_TRUE(rename_file(at("new"), at("old")));
    EXPECT_EQ(bytes_of("old"), "new");
    EXPECT_FALSE(rename_file(at("new"), at("old")));
    EXPECT_THAT(names(), ElementsAre("old"));
}

class Replacement : public Files {
  protected:
    void SetUp() override { write("Coltre.txt", "old"); }

    /// Why the file cannot be replaced; nothing may be left beside it.
    std::string refused(const std::string& name) {
        const std::vector<std::string> before = names();
        std::string reason;
        {
            FileReplacement file(suite_path(name));
            reason = file.reason();
            EXPECT_FALSE(file.good());
            file.write("new");
            EXPECT_FALSE(file.commit());
            EXPECT_EQ(file.reason(), reason);
        }
        EXPECT_THAT(names(), testing::UnorderedElementsAreArray(before));
        return reason;
    }
};

TEST_F(Replacement, KeepsTheOldFileUntilTheCommit) {
    fs::permissions(at("Coltre.txt"), fs::perms{0640});
    FileReplacement file(suite_path("coltre.TXT"));
    EXPECT_EQ(file.target(), at("Coltre.txt"));
    file.write("ne");
    file.write("w");
    EXPECT_TRUE(file.complete());
    EXPECT_EQ(bytes_of("Coltre.txt"), "old");
    EXPECT_TRUE(file.commit());
    EXPECT_EQ(bytes_of("Coltre.txt"), "new");
    EXPECT_EQ(fs::status(at("Coltre.txt")).permissions(), fs::perms{0640});
    EXPECT_THAT(names(), ElementsAre("Coltre.txt"));
}

TEST_F(Replacement, WithoutACommitLeavesTheOldFile) {
    {
        FileReplacement file(suite_path("Coltre.txt"));
        file.write("new");
        EXPECT_TRUE(file.complete());
    }
    EXPECT_EQ(bytes_of("Coltre.txt"), "old");
    EXPECT_THAT(names(), ElementsAre("Coltre.txt"));
}

TEST_F(Replacement, CreatesAFileAndTwoAtATime) {
    FileReplacement first(suite_path("new.txt"));
    FileReplacement second(suite_path("new.txt"));
    first.write("first");
    second.write("second");
    EXPECT_TRUE(first.commit());
    EXPECT_TRUE(second.commit());
    EXPECT_EQ(bytes_of("new.txt"), "second");
}

TEST_F(Replacement, WritesThroughALink) {
    fs::create_symlink("Coltre.txt", at("link"));
    FileReplacement file(suite_path("link"));
    file.write("new");
    EXPECT_TRUE(file.commit());
    EXPECT_TRUE(fs::is_symlink(at("link")));
    EXPECT_EQ(bytes_of("Coltre.txt"), "new");
}

TEST_F(Replacement, IsRefusedWithAReason) {
    fs::create_directory(at("directory"));
    fs::create_symlink("nowhere", at("dangling"));
    fs::create_symlink("ring", at("ring"));
    ASSERT_EQ(::mkfifo(at("pipe").c_str(), 0600), 0);
    EXPECT_EQ(refused("missing\\coltre.txt"), "la cartella non esiste");
    EXPECT_EQ(refused("Coltre.txt\\coltre.txt"), "la cartella non esiste");
    EXPECT_EQ(refused("directory"), "al suo posto c'è qualcosa che non è un file");
    EXPECT_EQ(refused("pipe"), "al suo posto c'è qualcosa che non è un file");
    EXPECT_EQ(refused("dangling"), "il collegamento non porta a un file");
    EXPECT_EQ(refused("ring"), "il collegamento non porta a un file");
    EXPECT_EQ(refused(std::string(300, 'x')), "il nome è troppo lungo");
}

TEST_F(Replacement, IsRefusedForAReadOnlyFile) {
    fs::permissions(at("Coltre.txt"), fs::perms{0444});
    EXPECT_EQ(refused("Coltre.txt"), "permesso negato");
    EXPECT_EQ(bytes_of("Coltre.txt"), "old");
}

TEST_F(Replacement, TellsAWriteThatFails) {
    // A limit on the size of files stands in for a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlim_t unlimited = limit.rlim_cur;
    for (const std::size_t size : {1500U, 1000000U}) {  // fails when the buffer is emptied; at once
        FileReplacement file(suite_path("Coltre.txt"));
        limit.rlim_cur = 1000;
        ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
        file.write(std::string(size, 'x'));
        const bool committed = file.commit();
        limit.rlim_cur = unlimited;
        ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
        EXPECT_FALSE(committed);
        EXPECT_THAT(file.reason(), Not(IsEmpty()));
        EXPECT_EQ(bytes_of("Coltre.txt"), "old");
        EXPECT_THAT(names(), ElementsAre("Coltre.txt"));
    }
    std::signal(SIGXFSZ, SIG_DFL);
}

}  // namespace
}  // namespace coltre
