#include "document/site_comparison.h"

#include <algorithm>
#include <tuple>

#include "document/formula_text.h"
#include "engine/results.h"
#include "site/regions.h"
#include "text/number_reading.h"

namespace coltre {

namespace {

LoadInputs inputs_at(const Place& place, LoadInputs calculation) {
    calculation.zone = place.zone;
    calculation.altitude = read_leniently(place.altitude).value;
    return calculation;
}

Pieces cell(std::string text) {
    return {{std::move(text), Style::plain}};
}

Pieces number_cell(const std::optional<double>& value, int decimals) {
    return cell(value ? fixed_text(*value, decimals) : "–");
}

}  // namespace

std::optional<double> ground_load_at(const Place& place, const LoadInputs& calculation) {
    return ground_load(inputs_at(place, calculation));
}

Table site_comparison(const std::vector<const Place*>& places, const LoadInputs& calculation) {
    struct Compared {
        const Place* place;
        std::optional<double> load, qsk;
    };
    std::vector<Compared> compared;
    for (const Place* const place : places)
        compared.push_back(
            {place, worst_load(inputs_at(*place, calculation)), ground_load_at(*place, calculation)});
    std::ranges::stable_sort(compared, std::greater(),
                             [](const Compared& it) { return std::tuple(it.load, it.qsk); });

    const auto& [symbol, quantity] = greatest_load_name(calculation.entries.kind);
    using enum ColumnAlign;
    Table table{{left, left, left, right, right, right},
                {cell("Comune"), cell("Provincia"), cell("Zona"), cell("Altitudine [m]"), cell("qsk [kN/m²]"),
                 cell(std::string(symbol) + " max [" + std::string(quantity.unit) + "]")},
                {}};
    for (const auto& [place, load, qsk] : compared)
        table.rows.push_back({cell(place->name), cell(std::string(place->province)),
                              cell(std::string(zone_name(place->zone))), cell(place->altitude),
                              number_cell(qsk, quantities::area_load.decimals),
                              number_cell(load, quantity.decimals)});
    return table;
}

}  // namespace coltre
