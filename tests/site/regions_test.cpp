#include "site/regions.h"

#include <gmock/gmock.h>

#include <map>
#include <string>
#include <vector>

#include "site/altitude_fields.h"
#include "site/built_in_altitudes.h"

namespace coltre {
namespace {

using testing::ElementsAre;

std::vector<std::string> provinces_of(int region_code) {
    std::vector<std::string> provinces;
    FillProvinces(region_code, provinces);
    return provinces;
}

TEST(Regions, ProvincesKeepTheirOwnOrder) {
    EXPECT_THAT(provinces_of(8), ElementsAre("Bologna", "Ferrara", "Forlì", "Modena", "Parma", "Piacenza",
                                             "Ravenna", "Rimini", "ReggioEmilia"));
    EXPECT_THAT(provinces_of(10), ElementsAre("Roma", "Frosinone", "Latina", "Rieti", "Viterbo"));
    EXPECT_THAT(provinces_of(11), ElementsAre("LaSpezia", "Genova", "Imperia", "Savona"));
    EXPECT_THAT(provinces_of(15), ElementsAre("Torino", "Alessandria", "Asti", "Biella", "Cuneo", "Novara",
                                              "Verbania", "Vercelli"));
    EXPECT_THAT(provinces_of(16), ElementsAre("Bari"));
}

TEST(Regions, EveryProvinceHasItsBlockInTheAltitudeFile) {
    EXPECT_EQ(regions().size(), 28U);
    std::size_t provinces = 0;
    for (const Region& region : regions()) {
        for (const std::string_view province : region.provinces) {
            ++provinces;
            EXPECT_TRUE(find_field(built_in_altitudes(), province)) << province;
        }
    }
    EXPECT_EQ(provinces, 103U);
}

TEST(Regions, FillingAppendsAndKnowsItsLimits) {
    std::vector<std::string> list{"Terni"};
    FillProvinces(-1, list);
    FillProvinces(28, list);
    EXPECT_THAT(list, ElementsAre("Terni"));
    FillProvinces(26, list);
    EXPECT_THAT(list, ElementsAre("Terni", "Aosta"));
}

TEST(Zones, FollowFromTheName) {
    const std::map<std::string, ProvinceZone> zones{
        {"Aosta", {0, "(Zona I Alpina)"}},
        {"Vicenza", {0, "(Zona I Alpina)"}},
        {"Milano", {1, "(Zona I Mediterranea)"}},
        {"Forlì", {1, "(Zona I Mediterranea)"}},
        {"FORLÌ", {1, "(Zona I Mediterranea)"}},
        {"Pesaro", {1, "(Zona I Mediterranea)"}},
        {"Arezzo", {2, "(Zona II)"}},
        {"Verona", {2, "(Zona II)"}},
        {"CampoBasso", {2, "(Zona II)"}},
        {"Roma", {3, "(Zona III)"}},
        {"ReggioCalabria", {3, "(Zona III)"}},
        {"L'Aquila", {3, "(Zona III)"}},
        {"Enna", {1, "(Zona I Mediterranea)"}},  // within "Ravenna"
        {"", {0, "(Zona I Alpina)"}},
    };
    for (const auto& [province, zone] : zones)
        EXPECT_EQ(ZoneOfProvince(province), zone) << province;
}

// The counts of the Decree's lists, and Enna.
TEST(Zones, HoldTheirNumberOfProvinces) {
    std::map<SnowZone, int> provinces;
    for (const Region& region : regions()) {
        for (const std::string_view province : region.provinces)
            ++provinces[ZoneOfProvince(province).zone];
    }
    EXPECT_THAT(provinces, ElementsAre(testing::Pair(0, 17), testing::Pair(1, 20), testing::Pair(2, 28),
                                       testing::Pair(3, 38)));
}

}  // namespace
}  // namespace coltre
