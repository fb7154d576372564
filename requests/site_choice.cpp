#include "requests/site_choice.h"

#include <algorithm>
#include <vector>

#include "platform/files.h"
#include "site/altitude_file.h"
#include "site/built_in_altitudes.h"
#include "site/municipalities.h"
#include "site/regions.h"
#include "site/suggestions.h"
#include "text/names.h"

namespace coltre {

namespace {

/// A name as the table spells it: the one that is typed exactly or, failing that, the only one that differs
/// in case, accents, apostrophes and blanks alone.
struct NameSearch {
    std::optional<std::string> found;
    std::vector<std::string> hits;  ///< names that differ in no more, if they are several
};

NameSearch find_name(std::string_view typed, std::span<const std::string> names) {
    if (std::ranges::find(names, typed) != names.end()) return {std::string(typed), {}};

    const std::string folded = fold_name(typed);
    std::vector<std::string> hits;
    for (const std::string& name : names) {
        if (fold_name(name) == folded && std::ranges::find(hits, name) == hits.end()) hits.push_back(name);
    }
    if (hits.size() == 1) return {hits.front(), {}};
    return {std::nullopt, hits};
}

const Places& built_in_places() {
    static const Places places(built_in_altitude_file());
    return places;
}

/// Ends the request with a message, which says what went wrong.
std::nullopt_t end_with(Message message, Answer& result) {
    result.fail(End::failed_with_message, message.text);
    result.messages.push_back(std::move(message));
    return std::nullopt;
}

std::nullopt_t end_with_error(std::string error, Answer& result) {
    result.fail(End::failed, std::move(error));
    return std::nullopt;
}

Message built_in_answered(const std::string& province) {
    return {
        Icon::information, std::string(program_title),
        "La provincia " + province +
            " non si legge dal file altitudini.txt:\rvale la tabella del programma. Il file resta com'è."};
}

/// Chooses province and municipality as the window does, but that an altitudini.txt which does not give them
/// stays as it is: the built-in table answers in its place.
/// @return nothing, with the error in the result, where the site cannot be had
std::optional<Site> choose_site(const Request& request, const std::string& directory, SiteMemory& memory,
                                Answer& result) {
    static const std::vector<std::string> all_provinces(provinces().begin(), provinces().end());
    const std::string& typed_province = *request.value(keys::provincia);
    const std::optional<std::string> province = find_name(typed_province, all_provinces).found;
    if (!province)
        return end_with_error(
            not_found("provincia sconosciuta", typed_province,
                      suggested_provinces(built_in_places(), typed_province, *request.value(keys::comune))),
            result);

    const AltitudeTable& table = memory.table(directory);
    if (table.missing) return end_with(altitude_write_error(), result);
    if (table.failure)
        return end_with_error("Impossibile leggere il file " +
                                  path_text(find_path(altitude_file_name(directory))) + ": " + *table.failure,
                              result);
    std::string_view file = table.bytes;
    auto municipalities = municipalities_in(file, *province);
    const bool from_built_in = !municipalities;
    if (from_built_in) {
        file = built_in_altitude_file();
        municipalities = municipalities_in(file, *province);
        if (!municipalities) return end_with(altitude_read_error(), result);
        result.messages.push_back(built_in_answered(*province));
    }
    const std::string& typed = *request.value(keys::comune);
    const auto [municipality, hits] = find_name(typed, *municipalities);
    if (!hits.empty()) return end_with_error(not_found("comune ambiguo", typed, hits), result);
    if (!municipality)
        return end_with_error(
            not_found("comune sconosciuto", typed,
                      suggested_municipalities(built_in_places(), typed, *province, *municipalities)),
            result);
    const auto altitude = altitude_in(file, *province, *municipality);
    if (!altitude) return end_with(altitude_read_error(), result);
    return Site{*province, *municipality, *altitude, ZoneOfProvince(*province).zone, from_built_in};
}

}  // namespace

std::string not_found(std::string_view what, std::string_view typed, std::string_view perhaps) {
    std::string error = std::string(what) + ": " + in_quotes(typed);
    if (!perhaps.empty()) error.append("; forse ").append(perhaps);
    return error;
}

std::string not_found(std::string_view what, std::string_view typed, std::span<const std::string> perhaps) {
    std::string listed;
    for (const std::string& name : perhaps)
        listed.append(listed.empty() ? "" : ", ").append(name);
    return not_found(what, typed, listed);
}

std::optional<Site> site_by_name(const Request& request, Program& program, SiteMemory& memory,
                                 Answer& result) {
    const std::string& directory = program.directories.ProgramDirectory;
    const std::string& province = *request.value(keys::provincia);
    const std::string& municipality = *request.value(keys::comune);
    std::optional<Site> site;
    if (const Site* const known = memory.recall(directory, province, municipality)) {
        site = *known;
        if (site->from_built_in) result.messages.push_back(built_in_answered(site->province));
    } else {
        site = choose_site(request, directory, memory, result);
        if (site) memory.keep(directory, province, municipality, *site);
    }
    // An answer without a site still says which one was asked for.
    result.province = site ? site->province : province;
    result.municipality = site ? site->municipality : municipality;
    if (site) program.cells.zone = site->zone;
    return site;
}

}  // namespace coltre
