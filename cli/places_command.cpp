#include "cli/places_command.h"

#include <algorithm>
#include <vector>

#include "cli/command.h"
#include "platform/files.h"
#include "requests/site_choice.h"
#include "site/altitude_file.h"
#include "site/places.h"
#include "site/regions.h"
#include "site/suggestions.h"
#include "text/characters.h"
#include "text/json_text.h"
#include "text/names.h"
#include "text/number_reading.h"

namespace coltre::cli {

namespace {

std::string padded(std::string_view text, std::size_t width) {
    std::string cell(text);
    return cell.append(width - std::min(width, character_count(text)), ' ');
}

std::string table_row(std::string_view name, std::string_view province, std::string_view zone,
                      std::string_view altitude) {
    constexpr std::size_t altitude_width = 10;
    return padded(name, 29) + padded(province, 16) + padded(zone, 25) +
           std::string(altitude_width - std::min(altitude_width, character_count(altitude)), ' ')
               .append(altitude);
}

std::string table_row(const PlaceHit& hit) {
    const Place& place = *hit.place;
    std::string row = table_row(place.name, place.province,
                                std::to_string(place.zone) + " " + std::string(zone_caption(place.zone)),
                                place.altitude + " m");
    if (const std::string words = remark(hit); !words.empty()) row += "  " + words;
    return row;
}

std::string json_object(const Place& place) {
    std::string json;
    JsonObject object(json);
    object.text("comune", place.name);
    object.text("provincia", place.province);
    object.number("zona", place.zone);
    object.number("altitudine", read_leniently(place.altitude).value);
    if (!place.today.name.empty()) object.text("oggi", place.today.name);
    if (!place.today.plate.empty()) object.text("provincia_oggi", place.today.plate);
    object.close();
    return json;
}

/// Leaves those of the province.
/// @return false if there is no such province
bool keep_province(std::string_view typed, const Places& places, std::vector<PlaceHit>& hits) {
    const auto is_in = [sought = fold_name(typed)](const Place& place) {
        return fold_name(place.province) == sought || fold_name(place.today.plate) == sought;
    };
    std::erase_if(hits, [&](const PlaceHit& hit) { return !is_in(*hit.place); });
    return !hits.empty() || std::ranges::any_of(places.all(), is_in);
}

/// The names that may be searched for.
std::vector<std::string> names_of(const Places& places) {
    std::vector<std::string> names;
    for (const Place& place : places.all())
        names.push_back(place.name);
    for (const LaterName& later : later_names())
        names.emplace_back(later.name);
    return names;
}

}  // namespace

int places_command(const PlacesQuery& query, std::string_view directory, std::ostream& out,
                   std::ostream& err) {
    const auto [places, failure] = places_in_force(directory);
    if (failure)
        err << "Attenzione: impossibile leggere il file "
            << path_text(find_path(altitude_file_name(directory))) << ": " << *failure
            << "; valgono le altitudini della tabella del programma\n";

    std::vector<PlaceHit> hits = places.find(query.text);
    if (!query.province.empty() && !keep_province(query.province, places, hits)) {
        err << "Errore: "
            << not_found("provincia sconosciuta", query.province,
                         suggested_provinces(places, query.province, query.text))
            << '\n';
        return failed;
    }
    if (hits.empty()) {
        err << "Errore: "
            << not_found("nessun comune trovato", query.text,
                         suggested_municipalities(places, query.text, "", names_of(places)))
            << '\n';
        return failed;
    }
    if (!query.json) out << table_row("Comune", "Provincia", "Zona", "Altitudine") << '\n';
    for (const PlaceHit& hit : hits)
        out << (query.json ? json_object(*hit.place) : table_row(hit)) << '\n';
    return all_well;
}

}  // namespace coltre::cli
