#include "site/suggestions.h"

#include <algorithm>
#include <functional>

#include "site/regions.h"
#include "text/names.h"

namespace coltre {

namespace {

constexpr std::size_t most_suggestions = 3;

/// The municipalities that have, or have been given, exactly this name.
std::vector<PlaceHit> called(const Places& places, std::string_view name) {
    const std::string sought = fold_name(name);
    std::vector<PlaceHit> hits = places.find(name);
    std::erase_if(hits, [&](const PlaceHit& hit) {
        return fold_name(hit.later_name.empty() ? hit.place->name : hit.later_name) != sought;
    });
    return hits;
}

/// "Bazzano, Savigno, oggi Valsamoggia (dal 2014), in provincia Bologna; …"
/// @param here  the province of which nothing is said
std::string listed(std::span<const PlaceHit> hits, std::string_view here) {
    std::string text;
    for (std::size_t i = 0; i < hits.size(); ++i) {
        const Place& place = *hits[i].place;
        const std::string today = name_of_today(hits[i]);
        text += place.name;
        const bool more = i + 1 < hits.size();
        if (more && hits[i + 1].place->province == place.province && name_of_today(hits[i + 1]) == today) {
            text += ", ";
            continue;
        }
        if (!today.empty()) text += ", " + today;
        if (place.province != here) text += ", in provincia " + std::string(place.province);
        if (more) text += "; ";
    }
    return text;
}

}  // namespace

std::vector<std::string> suggested_provinces(const Places& places, std::string_view province,
                                             std::string_view municipality) {
    std::vector<std::string> suggested;
    const auto add = [&](std::string_view name) {
        if (suggested.size() < most_suggestions && std::ranges::find(suggested, name) == suggested.end())
            suggested.emplace_back(name);
    };
    for (const std::string_view name : {municipality, province})
        for (const PlaceHit& hit : called(places, name))
            add(hit.place->province);
    const std::vector<std::string> all(provinces().begin(), provinces().end());
    std::ranges::for_each(nearest_names(province, all, most_suggestions), add);
    return suggested;
}

std::string suggested_municipalities(const Places& places, std::string_view municipality,
                                     std::string_view province, std::span<const std::string> names) {
    const auto can_be_chosen = [&](const PlaceHit& hit) {
        return hit.place->province != province || std::ranges::find(names, hit.place->name) != names.end();
    };
    const auto choices = [&](std::string_view name) {
        std::vector<PlaceHit> hits = called(places, name);
        std::erase_if(hits, std::not_fn(can_be_chosen));
        return hits;
    };
    if (const auto hits = choices(municipality); !hits.empty()) return listed(hits, province);

    std::vector<std::string> near(names.begin(), names.end());
    for (const LaterName& later : later_names())
        if (std::ranges::find(later.made_of, province, &Municipality::province) != later.made_of.end())
            near.emplace_back(later.name);
    std::string text;
    for (const std::string& name : nearest_names(municipality, near, most_suggestions)) {
        const bool as_it_is = !province.empty() && std::ranges::find(names, name) != names.end();
        const std::string shown = as_it_is ? name : listed(choices(name), province);
        if (shown.empty()) continue;
        if (!text.empty()) text += as_it_is ? ", " : "; ";
        text += shown;
    }
    return text;
}

}  // namespace coltre
