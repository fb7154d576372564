#include "platform/surroundings.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <locale>
#include <stdexcept>
#include <string>

#include "platform/files.h"

namespace coltre {
namespace {

bool has_locale(const char* name) {
    try {
        return !std::locale(name).name().empty();
    } catch (const std::runtime_error&) {
        return false;
    }
}

TEST(OwnDirectory, HoldsThisProgram) {
    const std::string own = own_directory("somewhere/else");
    EXPECT_THAT(own, testing::Not(testing::HasSubstr("/")));
    EXPECT_TRUE(read_file(own + "\\PLATFORM_TEST").has_value());
}

class UserLocale : public testing::Test {
  protected:
    void TearDown() override { ::unsetenv("LC_ALL"); }
};

TEST_F(UserLocale, GivesTheSeparator) {
    ::setenv("LC_ALL", "C", 1);
    EXPECT_EQ(user_decimal_separator(), '.');
    ::setenv("LC_ALL", "no_SUCH.locale", 1);
    EXPECT_EQ(user_decimal_separator(), '.');

    if (!has_locale("it_IT.UTF-8")) GTEST_SKIP() << "no Italian locale on this system";
    ::setenv("LC_ALL", "it_IT.UTF-8", 1);
    EXPECT_EQ(user_decimal_separator(), ',');
}

}  // namespace
}  // namespace coltre
