#include "cli/site_choice.h"

#include <algorithm>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "site/municipalities.h"
#include "site/regions.h"
#include "text/names.h"

namespace coltre::cli {

namespace {

/// A name as the table spells it: the one that is typed exactly or, failing that, the only one that differs
/// in case, accents, apostrophes and blanks alone.
struct NameSearch {
    std::string found;
    std::string mistake;  ///< Italian; empty if the name was found
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
    std::string mistake = std::string(what) + (hits.empty() ? " sconosciut" : " ambigu");
    mistake += what == "provincia" ? "a" : "o";
    mistake += ": " + in_quotes(typed);
    for (std::size_t i = 0; i < nearest.size(); ++i)
        mistake += (i == 0 ? "; forse " : ", ") + nearest[i];
    return {{}, mistake};
}

std::vector<std::string> all_provinces() {
    std::vector<std::string> provinces;
    for (int region = 0; region < static_cast<int>(regions().size()); ++region)
        FillProvinces(region, provinces);
    return provinces;
}

/// Chooses province and municipality as the window does.
/// @return nothing, with the error in the result, where the site cannot be had
std::optional<Site> choose_site(std::string_view typed_province, std::string_view typed_municipality,
                                Program& program, Result& result) {
    static const std::vector<std::string> provinces = all_provinces();
    const NameSearch province = find_name("provincia", typed_province, provinces);
    if (!province.mistake.empty()) {
        result.fail(End::failed, province.mistake);
        return std::nullopt;
    }
    program.cells.zone = ZoneOfProvince(province.found).zone;
    const auto municipalities =
        FillMunicipalities(program.directories.ProgramDirectory, province.found, result.messages);
    if (!municipalities) {
        result.fail(End::failed_with_message, result.messages.back().text);
        return std::nullopt;
    }
    const NameSearch municipality = find_name("comune", typed_municipality, municipalities->names);
    if (!municipality.mistake.empty()) {
        result.fail(End::failed, municipality.mistake);
        return std::nullopt;
    }
    const auto altitude = ReadAltitude(program.directories.ProgramDirectory, province.found,
                                       municipality.found, result.messages);
    if (!altitude) {
        result.fail(End::failed_with_message, result.messages.back().text);
        return std::nullopt;
    }
    return Site{province.found, municipality.found, *altitude, program.cells.zone};
}

}  // namespace

std::optional<Site> site_by_name(const Request& request, Program& program, SiteMemory& memory,
                                 Result& result) {
    const std::string& directory = program.directories.ProgramDirectory;
    const std::string& province = *request.value(keys::provincia);
    const std::string& municipality = *request.value(keys::comune);
    auto site = memory.recall(directory, province, municipality);
    if (!site) {
        site = choose_site(province, municipality, program, result);
        if (site) memory.keep(directory, province, municipality, *site);
    }
    // An answer without a site still says which one was asked for.
    result.province = site ? site->province : province;
    result.municipality = site ? site->municipality : municipality;
    if (site) program.cells.zone = site->zone;
    return site;
}

}  // namespace coltre::cli
