#include "platform/surroundings.h"

#include <gmock/gmock.h>

#include <clocale>
#include <cstdlib>
#include <string>

#include "platform/files.h"

namespace coltre {
namespace {

TEST(OwnDirectory, HoldsThisProgram) {
    const std::string own = own_directory("somewhere/else");
    EXPECT_THAT(own, testing::Not(testing::HasSubstr("/")));
    EXPECT_TRUE(read_file(own + "\\PLATFORM_TEST").has_value());
}

TEST(UserLocale, GivesTheSeparator) {
    const auto separator_in = [](const char* locale) {
        ::setenv("LC_ALL", locale, 1);
        const char separator = user_decimal_separator();
        ::unsetenv("LC_ALL");
        return separator;
    };
    EXPECT_EQ(separator_in("C"), '.');
    EXPECT_EQ(separator_in("no_SUCH.locale"), '.');
    const locale_t italian = ::newlocale(LC_ALL_MASK, "it_IT.UTF-8", nullptr);
    if (italian == nullptr) GTEST_SKIP() << "no Italian locale on this system";
    ::freelocale(italian);
    EXPECT_EQ(separator_in("it_IT.UTF-8"), ',');
}

}  // namespace
}  // namespace coltre
