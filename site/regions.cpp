#include "site/regions.h"

#include <cstddef>

#include "text/characters.h"

namespace coltre {

namespace {

using Name = std::string_view;

constexpr Name abruzzi[] = {"L'Aquila", "Chieti", "Pescara", "Teramo"};
constexpr Name basilicata[] = {"Matera", "Potenza"};
constexpr Name calabria[] = {"Catanzaro", "Cosenza", "Crotone", "ReggioCalabria", "ViboValentia"};
constexpr Name campania_av[] = {"Avellino"};
constexpr Name campania_bn[] = {"Benevento"};
constexpr Name campania_ce[] = {"Caserta"};
constexpr Name campania_na[] = {"Napoli"};
constexpr Name campania_sa[] = {"Salerno"};
constexpr Name emilia[] = {"Bologna",  "Ferrara", "Forlì",  "Modena",      "Parma",
                           "Piacenza", "Ravenna", "Rimini", "ReggioEmilia"};
constexpr Name friuli[] = {"Trieste", "Gorizia", "Pordenone", "Udine"};
constexpr Name lazio[] = {"Roma", "Frosinone", "Latina", "Rieti", "Viterbo"};
constexpr Name liguria[] = {"LaSpezia", "Genova", "Imperia", "Savona"};
constexpr Name lombardia[] = {"Bergamo", "Brescia", "Como",  "Cremona", "Lecco", "Lodi",
                              "Mantova", "Milano",  "Pavia", "Sondrio", "Varese"};
constexpr Name marche[] = {"Ancona", "AscoliPiceno", "Macerata", "Pesaro"};
constexpr Name molise[] = {"CampoBasso", "Isernia"};
constexpr Name piemonte[] = {"Torino", "Alessandria", "Asti",     "Biella",
                             "Cuneo",  "Novara",      "Verbania", "Vercelli"};
constexpr Name puglia_ba[] = {"Bari"};
constexpr Name puglia_br[] = {"Brindisi"};
constexpr Name puglia_fg[] = {"Foggia"};
constexpr Name puglia_le[] = {"Lecce"};
constexpr Name puglia_ta[] = {"Taranto"};
constexpr Name sardegna[] = {"Cagliari", "Nuoro", "Oristano", "Sassari"};
constexpr Name sicilia[] = {"Agrigento", "Caltanissetta", "Catania",  "Enna",   "Messina",
                            "Palermo",   "Ragusa",        "Siracusa", "Trapani"};
constexpr Name toscana[] = {"Arezzo", "Firenze", "Grosseto", "Livorno", "Lucca",
                            "Massa",  "Pisa",    "Pistoia",  "Prato",   "Siena"};
constexpr Name trentino[] = {"Bolzano", "Trento"};
constexpr Name umbria[] = {"Perugia", "Terni"};
constexpr Name aosta[] = {"Aosta"};
constexpr Name veneto[] = {"Belluno", "Padova", "Rovigo", "Treviso", "Venezia", "Verona", "Vicenza"};

constexpr Region region_table[] = {
    {"Abruzzi", abruzzi},
    {"Basilicata", basilicata},
    {"Calabria", calabria},
    {"Campania-AV", campania_av},
    {"Campania-BN", campania_bn},
    {"Campania-CE", campania_ce},
    {"Campania-NA", campania_na},
    {"Campania-SA", campania_sa},
    {"Emilia Rom.", emilia},
    {"Friuli Ven. Giulia", friuli},
    {"Lazio", lazio},
    {"Liguria", liguria},
    {"Lombardia", lombardia},
    {"Marche", marche},
    {"Molise", molise},
    {"Piemonte", piemonte},
    {"Puglia-BA", puglia_ba},
    {"Puglia-BR", puglia_br},
    {"Puglia-FG", puglia_fg},
    {"Puglia-LE", puglia_le},
    {"Puglia-TA", puglia_ta},
    {"Sardegna", sardegna},
    {"Sicilia", sicilia},
    {"Toscana", toscana},
    {"Trent. Alto Adige", trentino},
    {"Umbria", umbria},
    {"Valle d'Aosta", aosta},
    {"Veneto", veneto},
};

struct ZoneList {
    std::string_view caption;
    std::string_view provinces;
};

/// Zones by code. "Cesena" and "Urbino", which are no provinces here, and "Campobasso" for the province
/// "CampoBasso" are deliberate. Zone III holds every province that the others do not name.
constexpr ZoneList zone_table[] = {
    {"(Zona I Alpina)",
     "Aosta Belluno Bergamo Biella Bolzano Brescia Como Cuneo Lecco Pordenone Sondrio Torino Trento Udine "
     "Verbania Vercelli Vicenza"},
    {"(Zona I Mediterranea)",
     "Alessandria Ancona Asti Bologna Cremona Forlì Cesena Lodi Milano Modena Novara Parma Pavia Pesaro "
     "Urbino Piacenza Ravenna ReggioEmilia Rimini Treviso Varese"},
    {"(Zona II)",
     "Arezzo AscoliPiceno Bari Campobasso Chieti Ferrara Firenze Foggia Genova Gorizia Imperia Isernia "
     "LaSpezia Lucca Macerata Mantova Massa Padova Perugia Pescara Pistoia Prato Rovigo Savona Teramo "
     "Trieste Venezia Verona"},
    {"(Zona III)", ""},
};
constexpr std::size_t zone_iii = 3;

}  // namespace

std::span<const Region> regions() {
    return region_table;
}

std::span<const Name> provinces() {
    static const std::vector<Name> all = [] {
        std::vector<Name> names;
        for (const Region& region : regions())
            names.insert(names.end(), region.provinces.begin(), region.provinces.end());
        return names;
    }();
    return all;
}

void FillProvinces(int region_code, std::vector<std::string>& Provinciainput) {
    if (region_code < 0 || static_cast<std::size_t>(region_code) >= regions().size()) return;
    for (const Name province : regions()[static_cast<std::size_t>(region_code)].provinces)
        Provinciainput.emplace_back(province);
}

std::string_view zone_caption(SnowZone zone) {
    return zone_table[static_cast<std::size_t>(zone)].caption;
}

std::string_view zone_name(SnowZone zone) {
    const std::string_view caption = zone_caption(zone);
    return caption.substr(1, caption.size() - 2);
}

ProvinceZone ZoneOfProvince(std::string_view province) {
    const std::string wanted = lower_case(province);
    std::size_t zone = 0;
    while (zone < zone_iii && lower_case(zone_table[zone].provinces).find(wanted) == std::string::npos)
        ++zone;
    return {static_cast<SnowZone>(zone), zone_table[zone].caption};
}

}  // namespace coltre
