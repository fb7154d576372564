#include "site/regions.h"

#include <gmock/gmock.h>

#include "site/altitude_fields.h"
#include "site/built_in_altitudes.h"

namespace coltre {
namespace {

TEST(Regions, FillingAppendsInTheirOwnOrderAndKnowsItsLimits) {
    std::vector<std::string> list{"Terni"};
    for (const int region_code : {-1, 28, 8, 10, 26})
        FillProvinces(region_code, list);
    EXPECT_THAT(list, testing::ElementsAre("Terni", "Bologna", "Ferrara", "Forlì", "Modena", "Parma",
                                           "Piacenza", "Ravenna", "Rimini", "ReggioEmilia", "Roma",
                                           "Frosinone", "Latina", "Rieti", "Viterbo", "Aosta"));
}

// The counts of the Decree's lists, and Enna.
TEST(Regions, EveryProvinceHasItsZoneAndItsBlockInTheAltitudeFile) {
    EXPECT_EQ(regions().size(), 28U);
    std::map<SnowZone, int> count;
    for (const std::string_view province : provinces()) {
        ++count[ZoneOfProvince(province).zone];
        EXPECT_TRUE(find_field(built_in_table(), province)) << province;
    }
    EXPECT_EQ(count, (std::map<SnowZone, int>{{0, 17}, {1, 20}, {2, 28}, {3, 38}}));
}

// Enna lies within "Ravenna".
TEST(Zones, FollowFromTheName) {
    const std::map<std::string, ProvinceZone> zones{
        {"Aosta", {0, "(Zona I Alpina)"}},       {"FORLÌ", {1, "(Zona I Mediterranea)"}},
        {"Forlì", {1, "(Zona I Mediterranea)"}}, {"CampoBasso", {2, "(Zona II)"}},
        {"ReggioCalabria", {3, "(Zona III)"}},   {"L'Aquila", {3, "(Zona III)"}},
        {"Enna", {1, "(Zona I Mediterranea)"}},  {"", {0, "(Zona I Alpina)"}}};
    for (const auto& [province, zone] : zones)
        EXPECT_EQ(ZoneOfProvince(province), zone) << province;
}

}  // namespace
}  // namespace coltre
