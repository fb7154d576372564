#include "platform/environment.h"

#include <gmock/gmock.h>

#include "platform/files.h"

namespace coltre {
namespace {

TEST(OwnDirectory, HoldsThisProgram) {
    const std::string own = own_directory("somewhere/else");
    EXPECT_THAT(own, testing::Not(testing::HasSubstr("/")));
    EXPECT_TRUE(read_file(own + "\\" THIS_PROGRAM).has_value());
}

}  // namespace
}  // namespace coltre
