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

constexpr ProvinceZone alpine{0, "(Zona I Alpina)"};
constexpr ProvinceZone mediterranean{1, "(Zona I Mediterranea)"};
constexpr ProvinceZone zone_ii{2, "(Zona II)"};
constexpr ProvinceZone zone_iii{3, "(Zona III)"};

std::vector<std::string> provinces_of(int region_code) {
    std::vector<std::string> provinces;
    FillProvinces(region_code, provinces);
    return provinces;
}

TEST(Regions, CodeIsThePositionInTheList) {
    ASSERT_EQ(regions().size(), 28U);
    EXPECT_EQ(regions()[0].name, "Abruzzi");
    EXPECT_EQ(regions()[8].name, "Emilia Rom.");
    EXPECT_EQ(regions()[15].name, "Piemonte");
    EXPECT_EQ(regions()[27].name, "Veneto");
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

struct ZoneCase {
    std::string_view province;
    ProvinceZone zone;
};

class ZoneOf : public testing::TestWithParam<ZoneCase> {};

TEST_P(ZoneOf, Province) {
    EXPECT_EQ(ZoneOfProvince(GetParam().province), GetParam().zone);
}

INSTANTIATE_TEST_SUITE_P(Zones, ZoneOf,
                         testing::Values(ZoneCase{"Aosta", alpine}, ZoneCase{"Vicenza", alpine},
                                         ZoneCase{"Milano", mediterranean}, ZoneCase{"Forlì", mediterranean},
                                         ZoneCase{"Pesaro", mediterranean}, ZoneCase{"FORLÌ", mediterranean},
                                         ZoneCase{"Arezzo", zone_ii}, ZoneCase{"Verona", zone_ii},
                                         ZoneCase{"CampoBasso", zone_ii}, ZoneCase{"Roma", zone_iii},
                                         ZoneCase{"L'Aquila", zone_iii}, ZoneCase{"ReggioCalabria", zone_iii},
                                         ZoneCase{"Enna", mediterranean},  // within "Ravenna"
                                         ZoneCase{"", alpine}));

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
