#include "site/todays_names.h"

#include <array>
#include <cstddef>
#include <functional>
#include <unordered_map>

#include "site/todays_tables.h"

namespace coltre {

namespace {

/// Cuts what stands before the separator off the front of the text; all of it where there is none.
std::string_view take(std::string_view& text, char separator) {
    const std::size_t end = text.find(separator);
    const std::string_view taken = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return taken;
}

/// The rows of a table behind its header, so many cells each. No cell holds a comma.
template <std::size_t cells>
std::vector<std::array<std::string_view, cells>> rows_of(std::string_view table) {
    std::vector<std::array<std::string_view, cells>> rows;
    take(table, '\n');
    while (!table.empty()) {
        std::string_view line = take(table, '\n');
        for (std::string_view& cell : rows.emplace_back())
            cell = take(line, ',');
    }
    return rows;
}

struct Hash {
    std::size_t operator()(const Municipality& it) const {
        const std::hash<std::string_view> hash;
        return hash(it.province) * 31 + hash(it.name);
    }
};

}  // namespace

const std::vector<LaterName>& later_names() {
    static const std::vector<LaterName> all = [] {
        std::vector<LaterName> names;
        for (const auto& [name, plate, since, kind, places] : rows_of<5>(nomi_dopo_1998_csv())) {
            LaterName& it = names.emplace_back(LaterName{name, plate, since, kind == "istituzione", {}});
            for (std::string_view rest = places; !rest.empty();) {
                std::string_view municipality = take(rest, ';');
                const std::string_view province = take(municipality, '/');
                it.made_of.push_back({province, municipality});
            }
        }
        return names;
    }();
    return all;
}

const std::vector<Suppressed>& suppressed() {
    static const std::vector<Suppressed> all = [] {
        std::vector<Suppressed> gone;
        for (const auto& [province, name, successor] : rows_of<3>(soppressi_csv()))
            gone.push_back({{province, name}, successor});
        return gone;
    }();
    return all;
}

const std::vector<MovedProvince>& moved_provinces() {
    static const std::vector<MovedProvince> all = [] {
        std::vector<MovedProvince> moved;
        for (const auto& [province, name, plate] : rows_of<3>(province_oggi_csv()))
            moved.push_back({{province, name}, plate});
        return moved;
    }();
    return all;
}

Today today(const Municipality& municipality) {
    static const auto all = [] {
        std::unordered_map<Municipality, Today, Hash> changed;
        for (const Suppressed& it : suppressed())
            changed[it.municipality].name = it.successor;
        for (const LaterName& later : later_names()) {
            if (later.founded) continue;
            for (const Municipality& it : later.made_of) {
                Today& known = changed[it];
                // What a suppressed one was meanwhile, and a second form of the same name, count no more.
                if (known.name.empty()) known.name = later.name;
                if (known.name == later.name) known.since = later.since;
            }
        }
        for (const MovedProvince& it : moved_provinces())
            changed[it.municipality].plate = it.plate;
        return changed;
    }();
    const auto found = all.find(municipality);
    return found == all.end() ? Today{} : found->second;
}

}  // namespace coltre
