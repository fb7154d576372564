#include "site/built_in_altitudes.h"

#include <gmock/gmock.h>

namespace coltre {
namespace {

TEST(BuiltInAltitudes, FileHoldsItsTellingRowsInTheCodePageWithCrLf) {
    const std::string file = "\r\n" + built_in_altitude_file();
    for (const std::string rows : {
             "\r\nTorino\r\nTorino                         239\r\nAglie'                         315\r\n",
             "\r\nNogaroleVicentino              525\r\n33543\r\nNoventaVicentina               16\r\n",
             "\r\n\r\nReggioDiCalabria               15\r\n",
             "\r\n\r\nForl\xEC\r\nForl\xEC                          34\r\n",
             "\r\nCh\xE2tillon                      ",
         })
        EXPECT_THAT(file, testing::HasSubstr(rows));
    EXPECT_THAT(file, testing::EndsWith("Zerfaliu                       15\r\n"));
    EXPECT_EQ(std::ranges::count(file, '\n'), 8619);
    EXPECT_EQ(file.find('?'), std::string::npos) << "a character outside the code page";
}

}  // namespace
}  // namespace coltre
