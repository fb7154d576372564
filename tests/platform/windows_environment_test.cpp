#include <gtest/gtest.h>
#include <windows.h>

#include "platform/environment.h"
#include "platform/files.h"
#include "tests/support/temporary_directory.h"

namespace coltre {
namespace {

TEST(WindowsEnvironment, HasTheUsersDecimalSeparator) {
    EXPECT_EQ(user_decimal_separator(), ',') << "as the system of the tests is set up";
}

TEST(WindowsEnvironment, HasDirectoriesToWriteIn) {
    const TemporaryDirectory directory;
    EXPECT_TRUE(is_directory(documents_directory()));
    EXPECT_TRUE(may_write_in(directory.text()));
    const HANDLE holder = ::CreateFileW(directory.path().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                        FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    EXPECT_NE(holder, INVALID_HANDLE_VALUE);
    EXPECT_TRUE(may_write_in(directory.text())) << "held by another program, for a moment as a rule";
    ::CloseHandle(holder);
}

}  // namespace
}  // namespace coltre
