#include "site/places.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <map>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "platform/code_page.h"
#include "platform/files.h"
#include "site/altitude_fields.h"
#include "site/altitude_file.h"
#include "site/built_in_altitudes.h"
#include "site/built_in_blocks.h"
#include "site/municipalities.h"
#include "site/regions.h"
#include "text/names.h"

namespace coltre {

namespace {

/// A name as it is compared.
std::string search_form(std::string_view name) {
    std::string folded = fold_name(name);
    std::erase(folded, '-');
    return folded;
}

/// How well a name answers, the best first; those found by a later name come right behind those found by
/// their own.
enum Rank : std::uint8_t { is_it, starts_with_it = 2, holds_it = 4, no_hit = 6 };

Rank rank_of(std::string_view name, std::string_view sought) {
    const std::size_t found = name.find(sought);
    if (found == std::string_view::npos) return no_hit;
    if (found > 0) return holds_it;
    return name.size() == sought.size() ? is_it : starts_with_it;
}

std::vector<std::string> words_of(std::string_view typed) {
    std::vector<std::string> words(1);
    for (const char c : typed) {
        constexpr std::string_view separators = " ,()\t";
        if (separators.find(c) == std::string_view::npos) {
            words.back() += c;
        } else if (!words.back().empty()) {
            words.emplace_back();
        }
    }
    if (words.back().empty()) words.pop_back();
    return words;
}

std::string joined(std::span<const std::string> words) {
    std::string text;
    for (const std::string& word : words)
        text += word;
    return search_form(text);
}

void append(std::string& remark, const std::string& text) {
    if (!remark.empty()) remark += "; ";
    remark += text;
}

}  // namespace

std::string name_of_today(const PlaceHit& hit) {
    const Today& today = hit.place->today;
    std::string text;
    if (hit.part_of_it) append(text, "in parte oggi " + std::string(hit.later_name));
    if (!today.name.empty()) {
        append(text, "oggi " + std::string(today.name));
        if (!today.since.empty()) text += " (dal " + std::string(today.since.substr(0, 4)) + ")";
    }
    return text;
}

std::string remark(const PlaceHit& hit) {
    const Place& place = *hit.place;
    std::string text = name_of_today(hit);
    if (!place.today.plate.empty()) append(text, "oggi in provincia " + std::string(place.today.plate));
    if (!place.namesakes.empty()) append(text, "omonimo in provincia di " + place.namesakes);
    if (!place.selectable) append(text, "provincia illeggibile in altitudini.txt");
    if (place.corrected())
        append(text, place.listed.empty() ? "aggiunto in altitudini.txt"
                                          : "quota corretta (tabella: " + place.listed + " m)");
    return text;
}

Places::Places(std::string_view file) {
    constexpr std::size_t municipalities = 8102;
    m_places.reserve(municipalities);
    for (const std::string_view province : provinces())
        add_province(file, province);
    m_folded.reserve(m_places.size());
    for (const Place& place : m_places)
        m_folded.push_back(search_form(place.name));
    add_namesakes();
    add_aliases();
}

void Places::add_province(std::string_view file, std::string_view province) {
    const AltitudeBlock& block = *find_built_in_block(to_code_page(province));
    const auto lines = municipality_lines_in(file, province);
    const SnowZone zone = ZoneOfProvince(province).zone;
    std::unordered_set<std::string_view> names;
    for (const std::string_view line : lines ? *lines : block.lines) {
        const std::string_view name = *municipality_of(line);
        if (!names.insert(name).second) continue;  // the first counts
        Place& place = m_places.emplace_back();
        place.province = province;
        place.zone = zone;
        place.name = from_code_page(name);
        place.altitude = from_code_page(altitude_of(line));
        const auto listed = block.line_of.find(name);
        if (listed != block.line_of.end()) place.listed = altitude_of(listed->second);
        place.selectable = lines.has_value();
        place.today = today({province, place.name});
    }
}

void Places::add_namesakes() {
    std::unordered_map<std::string_view, std::vector<std::size_t>> by_name;
    for (std::size_t i = 0; i < m_places.size(); ++i)
        by_name[m_folded[i]].push_back(i);
    for (const auto& [name, all] : by_name) {
        if (all.size() == 1) continue;
        for (const std::size_t i : all) {
            std::string& namesakes = m_places[i].namesakes;
            for (const std::size_t other : all) {
                if (m_places[other].province == m_places[i].province) continue;
                namesakes.append(namesakes.empty() ? "" : ", ").append(m_places[other].province);
            }
        }
    }
}

void Places::add_aliases() {
    std::map<std::pair<std::string_view, std::string_view>, std::uint32_t> numbers;
    for (const Place& place : m_places)
        numbers.emplace(std::pair(place.province, std::string_view(place.name)),
                        static_cast<std::uint32_t>(numbers.size()));
    const auto add = [&](std::string_view name, bool founded, std::span<const Municipality> made_of) {
        Alias alias{name, founded, search_form(name), {}};
        for (const Municipality& it : made_of) {
            const auto found = numbers.find({it.province, it.name});
            if (found != numbers.end()) alias.places.push_back(found->second);
        }
        m_aliases.push_back(std::move(alias));
    };
    for (const LaterName& later : later_names())
        add(later.name, later.founded, later.made_of);
    // Those that went into a municipality whose name is none of the later ones.
    for (const Suppressed& it : suppressed())
        add(it.successor, false, {&it.municipality, 1});
}

std::vector<PlaceHit> Places::find(std::string_view typed) const {
    constexpr std::size_t most_words = 16;  // more than any name has
    const std::vector<std::string> words = words_of(typed);
    if (words.size() > most_words) return {};
    const auto with_province = [&](bool whole) {
        std::vector<PlaceHit> hits;
        for (std::size_t of_name = words.size(); hits.empty() && of_name-- > 1;)
            hits = find(Query{joined(std::span(words).first(of_name)),
                              joined(std::span(words).subspan(of_name)), whole});
        return hits;
    };
    std::vector<PlaceHit> hits = with_province(true);
    if (hits.empty()) hits = find(Query{joined(words), {}, false});
    if (hits.empty()) hits = with_province(false);
    return hits;
}

std::vector<PlaceHit> Places::find(const Query& query) const {
    const auto in_province = [&](const Place& place) {
        if (query.province.empty()) return true;
        const std::string province = search_form(place.province);
        return (query.whole_province ? province == query.province : province.starts_with(query.province)) ||
               search_form(place.today.plate) == query.province;
    };
    struct Found {
        std::uint8_t rank = no_hit;
        const Alias* by = nullptr;
    };
    std::vector<Found> found(m_places.size());
    for (std::size_t i = 0; i < m_places.size(); ++i)
        found[i].rank = rank_of(m_folded[i], query.name);
    for (const Alias& alias : m_aliases) {
        const auto rank = static_cast<std::uint8_t>(rank_of(alias.folded, query.name) + 1);
        for (const std::uint32_t i : alias.places)
            if (rank < found[i].rank) found[i] = {rank, &alias};
    }
    std::array<std::vector<PlaceHit>, no_hit> by_rank;
    for (std::size_t i = 0; i < m_places.size(); ++i) {
        const auto& [rank, by] = found[i];
        if (rank == no_hit || !in_province(m_places[i])) continue;
        by_rank.at(rank).push_back(
            {&m_places[i], by == nullptr ? "" : by->name, by != nullptr && by->founded});
    }
    std::vector<PlaceHit> hits;
    for (const auto& of_rank : by_rank)
        hits.insert(hits.end(), of_rank.begin(), of_rank.end());
    return hits;
}

PlacesInForce places_in_force(std::string_view ProgramDirectory) {
    FileContent file = read_content(altitude_file_name(ProgramDirectory));
    switch (file.end) {
        case ReadEnd::read:
            return {Places(file.bytes), {}};
        case ReadEnd::missing:
            return {Places(built_in_altitude_file()), {}};
        case ReadEnd::unreadable:
            return {Places(built_in_altitude_file()), "il file non si può leggere"};
        case ReadEnd::disturbed:
            break;
    }
    return {Places(built_in_altitude_file()), std::move(file.reason)};
}

}  // namespace coltre
