#include <gtest/gtest.h>

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
    EXPECT_FALSE(may_write_in(directory.text() + "\\nowhere"));
}

}  // namespace
}  // namespace coltre
