#include "site/places.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "site/built_in_altitudes.h"

namespace coltre {
namespace {

using testing::ElementsAre;

const Places& built_in_places() {
    static const Places places(built_in_altitude_file());
    return places;
}

/// The first hits as lines.
std::vector<std::string> found(const Places& places, const char* typed, std::size_t most = 3) {
    std::vector<std::string> lines;
    for (const PlaceHit& hit : places.find(typed)) {
        if (lines.size() == most) break;
        lines.push_back(hit.place->name + ", " + std::string(hit.place->province) + ", " +
                        hit.place->altitude + ": " + remark(hit));
    }
    return lines;
}

TEST(TodaysNames, EveryRowLeadsToTheTable) {
    EXPECT_EQ(later_names().size(), 178U);
    EXPECT_EQ(suppressed().size(), 333U);
    EXPECT_EQ(moved_provinces().size(), 239U);
    std::vector<Municipality> all;
    for (const Place& place : built_in_places().all())
        all.push_back({place.province, place.name});
    EXPECT_EQ(all.size(), 8102U);
    const auto is_known = [&](const Municipality& it) {
        EXPECT_NE(std::ranges::find(all, it), all.end()) << it.province << '/' << it.name;
    };
    for (const LaterName& later : later_names()) {
        EXPECT_FALSE(later.name.empty() || later.plate.size() != 2 || later.made_of.empty()) << later.name;
        std::ranges::for_each(later.made_of, is_known);
    }
    std::ranges::for_each(suppressed(), is_known, &Suppressed::municipality);
    std::ranges::for_each(moved_provinces(), is_known, &MovedProvince::municipality);
}

TEST(Places, AreFoundByNamesOf1996AndOfToday) {
    const struct {
        const char* typed;
        std::vector<std::string> hits;
    } rows[] = {
        {"AGLIÈ", {"Aglie', Torino, 315: "}},
        {"nago torb", {"Nago-Torbole, Trento, 222: "}},
        {"samone",
         {"Samone, Torino, 247: omonimo in provincia di Trento",
          "Samone, Trento, 673: omonimo in provincia di Torino"}},
        {"samone (tren", {"Samone, Trento, 673: omonimo in provincia di Torino"}},
        {"monza mb", {"Monza, Milano, 162: oggi in provincia MB"}},
        {"valsamog",
         {"Bazzano, Bologna, 93: oggi Valsamoggia (dal 2014)",
          "CastelloDiSerravalle, Bologna, 182: oggi Valsamoggia (dal 2014)",
          "Crespellano, Bologna, 64: oggi Valsamoggia (dal 2014)"}},
        {"fonte nuova",
         {"GuidoniaMontecelio, Roma, 105: in parte oggi Fonte Nuova",
          "Mentana, Roma, 150: in parte oggi Fonte Nuova"}},
        // Merged into Mosso, which is gone as well.
        {"pistolesa", {"Pistolesa, Biella, 660: oggi Valdilana (dal 2019)"}},
        {"bellagio", {"Bellagio, Como, 229: ", "Civenna, Como, 627: oggi Bellagio"}},
        {"luni", {"Ortonovo, LaSpezia, 64: oggi Luni (dal 2017)"}},
        {"qqq", {}},
    };
    for (const auto& [typed, hits] : rows) {
        const auto first = found(built_in_places(), typed, std::max<std::size_t>(hits.size(), 1));
        EXPECT_EQ(first, hits) << typed;
    }
    EXPECT_EQ(built_in_places().find(" ").size(), 8102U);
}

TEST(Places, HaveTheAltitudesOfTheFileAndThoseOfTheTableWhereItCannotBeRead) {
    const Places places(
        "Torino\nTorino    240\nBorgo     1 \nAglie'    315\nTorino    9\n\nVicenza\nVicenza   "
        "40\n33543\n\n");
    EXPECT_THAT(found(places, "torino", 1),
                ElementsAre("Torino, Torino, 240: quota corretta (tabella: 239 m)"));
    EXPECT_THAT(found(places, "borgo", 1), ElementsAre("Borgo, Torino, 1: aggiunto in altitudini.txt"));
    EXPECT_THAT(found(places, "aglie", 1), ElementsAre("Aglie', Torino, 315: "));
    EXPECT_THAT(found(places, "Vicenza", 1),
                ElementsAre("Vicenza, Vicenza, 39: provincia illeggibile in altitudini.txt"));
    EXPECT_THAT(found(places, "aosta", 1),
                ElementsAre(testing::StartsWith("Aosta, Aosta, 583: provincia illeg")));
}

}  // namespace
}  // namespace coltre
