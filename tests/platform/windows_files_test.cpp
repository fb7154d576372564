#include <gmock/gmock.h>
#include <windows.h>

#include "platform/file_replacement.h"
#include "platform/files.h"
#include "tests/support/temporary_directory.h"

namespace coltre {
namespace {

TEST(WindowsPaths, KeepTheNetworksNameAndLoseASeparatorAtTheEnd) {
    EXPECT_EQ(find_path("\\\\Server/Studio\\Nuovo\\").native(), L"\\\\Server\\Studio\\Nuovo");
    EXPECT_EQ(find_path("C:/").native(), L"C:\\");
}

// A word processor that shows a report, say.
TEST(WindowsFiles, ThatAnotherProgramHoldsOpenStayAndItIsSaid) {
    const TemporaryDirectory directory;
    directory.put("Coltre.txt", "old");
    const auto path = find_path(directory.text() + "\\coltre.txt");
    const HANDLE holder =
        ::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(FileReplacement(path).commit(), "un altro programma lo tiene aperto");
    EXPECT_EQ(directory.content("coltre.TXT"), "old");
    ::CloseHandle(holder);
    EXPECT_EQ(FileReplacement(path).commit(), std::nullopt);
    EXPECT_THAT(directory.files(), testing::SizeIs(1));
}

}  // namespace
}  // namespace coltre
