#include "document/sensitivity.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "document/formula_text.h"
#include "drawings/diagrams.h"
#include "engine/ground_load.h"
#include "site/regions.h"
#include "text/number_text.h"

namespace coltre {

namespace {

/// The inputs with one of them changed, under the words for the change.
void vary(std::vector<Variation>& variations, std::string what, const LoadInputs& changed) {
    variations.push_back({std::move(what), worst_load(changed)});
}

void vary_ground_load(std::vector<Variation>& variations, const LoadInputs& inputs) {
    for (const double by : {-50.0, 50.0}) {
        LoadInputs changed = inputs;
        changed.altitude += by;
        if (changed.altitude < 0) continue;
        vary(variations,
             "altitudine " + number_text(changed.altitude) + " m (" + (by < 0 ? "− " : "+ ") + "50 m)",
             changed);
    }
    for (const double CE : {0.9, 1.0, 1.1}) {
        LoadInputs changed = inputs;
        changed.CE = CE;
        if (CE != inputs.CE) vary(variations, "CE = " + fixed_text(CE, 1), changed);
    }
    for (const double Tr : {50.0, 100.0, 200.0, 500.0}) {
        LoadInputs changed = inputs;
        changed.factor = return_period_factor(Checked(Tr)).value();
        vary(variations,
             "periodo di ritorno di " + number_text(Tr) + " anni confermato (" +
                 fixed_text(changed.factor, 4) + ")",
             changed);
    }
    for (const int by : {-1, 1}) {
        LoadInputs changed = inputs;
        changed.zone = static_cast<SnowZone>(inputs.zone + by);
        if (changed.zone >= 0 && changed.zone <= 3)
            vary(variations, std::string(zone_name(changed.zone)), changed);
    }
}

/// The program cells with the ground load of the inputs.
std::optional<ProgramCells> loaded_cells(const LoadInputs& inputs) {
    ProgramCells cells;
    cells.zone = inputs.zone;
    cells.return_period_factor = inputs.factor;
    if (set_base_load(cells, inputs.altitude) != Fault::none) return std::nullopt;
    if (apply_load_factors(cells, inputs.CE, inputs.Ct) != Fault::none) return std::nullopt;
    return cells;
}

}  // namespace

std::optional<LoadInputs> load_inputs(const Fields& fields, SnowZone zone, double factor) {
    EntryReader reader;
    LoadInputs inputs;
    inputs.zone = zone;
    inputs.factor = factor;
    inputs.altitude = reader.lenient("altitudine", "as", "m", fields.asinput);
    inputs.CE = reader.lenient("coefficiente di esposizione", "CE", "", fields.ComboEsp);
    inputs.Ct = reader.lenient("coefficiente termico", "Ct", "", fields.TextCTermico);
    inputs.entries = reader.entries(fields.kind, fields.entries, fields.decimal_separator);
    if (reader.stop()) return std::nullopt;
    return inputs;
}

std::optional<double> ground_load(const LoadInputs& inputs) {
    const auto cells = loaded_cells(inputs);
    if (!cells) return std::nullopt;
    return cells->qsk;
}

std::optional<Result> worst_load(Kind kind, const Calculation& calculation) {
    std::optional<Result> worst;
    for (const ResultPlace& place : describe(kind).places) {
        const bool is_load = place.result->quantity.unit == quantities::area_load.unit;
        if (!is_load && place.result != &results::Fs) continue;
        const auto result = std::ranges::find(calculation.results, place.result, &Result::cell);
        if (result == calculation.results.end()) return std::nullopt;
        if (!worst || result->value > worst->value) worst = *result;
    }
    return worst;
}

std::optional<double> worst_load(const LoadInputs& inputs) {
    auto cells = loaded_cells(inputs);
    if (!cells) return std::nullopt;
    const auto worst = worst_load(inputs.entries.kind, calculate(*cells, inputs.entries));
    if (!worst) return std::nullopt;
    return worst->value;
}

std::vector<Variation> variations(const LoadInputs& inputs) {
    std::vector<Variation> variations;
    const Description& calculation = describe(inputs.entries.kind);
    if (calculation.needs_ground_load) vary_ground_load(variations, inputs);
    for (const Entry& entry : calculation.entries) {
        const bool slope = entry.unit == "°";
        for (const double sign : {-1.0, 1.0}) {
            LoadInputs changed = inputs;
            double& number = changed.entries.*entry.number;
            const double by = slope ? 5 : 0.1 * std::abs(number);
            number += sign * by;
            if (by == 0 || (slope && number < 0)) continue;
            vary(variations,
                 plain_text(symbol_text(entry.symbol)) + " = " + with_unit(number_text(number), entry.unit) +
                     " (" + (sign < 0 ? "− " : "+ ") + (slope ? "5°" : "10 %") + ")",
                 changed);
        }
    }
    return variations;
}

Table variation_table(const LoadInputs& inputs) {
    const Quantity quantity = greatest_load_name(inputs.entries.kind).quantity;
    const std::string what = describe(inputs.entries.kind).needs_ground_load ? "carico massimo" : "forza Fs";
    Table table{
        {ColumnAlign::left, ColumnAlign::right, ColumnAlign::right},
        {plain("Se cambia"), plain(what + " [" + std::string(quantity.unit) + "]"), plain("variazione")},
        {}};
    const std::optional<double> now = worst_load(inputs);
    for (const Variation& variation : variations(inputs)) {
        std::string load = "non si calcola", change = "–";
        if (variation.load) load = value_text(*variation.load, quantity);
        if (variation.load && now.value_or(0) != 0) {
            const double percent = round_half_even(100 * (*variation.load / *now - 1), 1);
            change = (percent > 0 ? "+" : "") + fixed_text(percent == 0 ? 0 : percent, 1) + " %";
        }
        table.rows.push_back({plain(variation.what), plain(load), plain(change)});
    }
    return table;
}

LoadName greatest_load_name(Kind kind) {
    const Description& calculation = describe(kind);
    if (!calculation.needs_ground_load) return {"Fs", quantities::line_load};
    return {calculation.window == Window::main ? "qs" : "qs2", quantities::area_load};
}

std::optional<Drawing> load_over_altitude(const LoadInputs& inputs) {
    const Kind kind = inputs.entries.kind;
    if (!describe(kind).needs_ground_load) return std::nullopt;
    const auto curve_of = [&](SnowZone zone) {
        return AltitudeCurve{std::string(zone_name(zone)), [at = inputs, zone](double altitude) mutable {
                                 at.zone = zone;
                                 at.altitude = altitude;
                                 return worst_load(at);
                             }};
    };
    AltitudeDiagram diagram{
        std::string(greatest_load_name(kind).symbol), inputs.altitude, curve_of(inputs.zone), {}};
    for (SnowZone other = 0; other < 4; ++other)
        if (other != inputs.zone) diagram.others.push_back(curve_of(other));
    return load_over_altitude(diagram);
}

}  // namespace coltre
