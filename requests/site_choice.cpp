#include "requests/site_choice.h"

#include <algorithm>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "site/altitude_file.h"
#include "site/built_in_altitudes.h"
#include "site/municipalities.h"
#include "site/regions.h"
#include "text/names.h"

namespace coltre {

namespace {

/// A name as the table spells it: the one that is typed exactly or, failing that, the only one that differs
/// in case, accents, apostrophes and blanks alone.
struct NameSearch {
    std::string found;
    std::string error;  ///< Italian; empty if the name was found
};

NameSearch find_name(std::string_view what, std::string_view typed, std::span<const std::string> names) {
    if (std::ranges::find(names, typed) != names.end()) return {std::string(typed), {}};

    const std::string folded = fold_name(typed);
    std::vector<std::string> hits;
    for (const std::string& name : names) {
        if (fold_name(name) == folded && std::ranges::find(hits, name) == hits.end()) hits.push_back(name);
    }
    if (hits.size() == 1) return {hits.front(), {}};

    const auto nearest = hits.empty() ? nearest_names(typed, names, 3) : hits;
    std::string error = std::string(what) + (hits.empty() ? " sconosciut" : " ambigu");
    error += what == "provincia" ? "a" : "o";
    error += ": " + in_quotes(typed);
    for (std::size_t i = 0; i < nearest.size(); ++i)
        error += (i == 0 ? "; forse " : ", ") + nearest[i];
    return {{}, error};
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
    const NameSearch province = find_name("provincia", *request.value(keys::provincia), all_provinces);
    if (!province.error.empty()) return end_with_error(province.error, result);

    const AltitudeTable& table = memory.table(directory);
    if (table.missing) return end_with(altitude_write_error(), result);
    if (table.failure)
        return end_with_error("Impossibile leggere il file " +
                                  path_text(find_path(altitude_file_name(directory))) + ": " + *table.failure,
                              result);
    std::string_view file = table.bytes;
    auto municipalities = municipalities_in(file, province.found);
    const bool from_built_in = !municipalities;
    if (from_built_in) {
        file = built_in_altitude_file();
        municipalities = municipalities_in(file, province.found);
        if (!municipalities) return end_with(altitude_read_error(), result);
        result.messages.push_back(built_in_answered(province.found));
    }
    const NameSearch municipality = find_name("comune", *request.value(keys::comune), *municipalities);
    if (!municipality.error.empty()) return end_with_error(municipality.error, result);
    const auto altitude = altitude_in(file, province.found, municipality.found);
    if (!altitude) return end_with(altitude_read_error(), result);
    return Site{province.found, municipality.found, *altitude, ZoneOfProvince(province.found).zone,
                from_built_in};
}

}  // namespace

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
