#include <algorithm>

#include "calculate/entry_reader.h"
#include "cli/answers.h"
#include "site/regions.h"
#include "text/characters.h"
#include "text/number_text.h"

namespace coltre::cli {

namespace {

constexpr std::size_t name_width = 22;
constexpr std::size_t value_width = 12;

std::string left(std::string_view text, std::size_t width) {
    std::string cell(text);
    cell.append(width - std::min(width, character_count(text)), ' ');
    return cell;
}

std::string right(std::string_view text, std::size_t width) {
    return std::string(width - std::min(width, character_count(text)), ' ').append(text);
}

void append_row(std::string& table, std::string_view name, std::string_view value, std::string_view unit) {
    table += left(name, name_width) + right(value, value_width);
    if (!unit.empty()) table.append(" ").append(unit);
    table += '\n';
}

void append_text_row(std::string& table, std::string_view name, std::string_view text) {
    table += left(name, name_width) + "  " + std::string(text) + '\n';
}

std::string with_unit(double value, std::string_view unit) {
    std::string text = shortest_number_text(value);
    if (!unit.empty()) text.append(" ").append(unit);
    return text;
}

/// What the numbers below were computed from, site apart.
void append_data(std::string& table, const Answer& answer) {
    const std::string factor =
        "coefficiente " + shortest_number_text(round_half_even(answer.return_period_factor, 4));
    append_text_row(table, "Periodo di ritorno",
                    answer.return_period ? with_unit(*answer.return_period, "anni") + ", " + factor
                                         : factor + ", non confermato");
    for (const Datum& datum : answer.trace->data) {
        const bool told_above = datum.symbol == "zona" || datum.symbol == "as" || datum.symbol == "Tr";
        if (!told_above && !datum.text.empty())
            append_row(table, datum.symbol, shortest_number_text(datum.value), datum.unit);
    }
}

/// A line of a step below its symbol.
void append_step_line(std::string& table, std::string_view before, std::string_view text) {
    if (!text.empty()) table.append("    ").append(before).append(text).append("\n");
}

void append_trace(std::string& table, const Trace& trace) {
    table += "\nDati\n";
    for (const Datum& datum : trace.data)
        append_text_row(table, "  " + datum.symbol, with_unit(datum.value, datum.unit));
    table += "\nPassaggi\n";
    for (const Step& step : trace.steps) {
        table.append("  ").append(step.symbol).append(" = ").append(step.formula).append("\n");
        if (step.numbers != step.formula) append_step_line(table, "= ", step.numbers);
        append_step_line(table, "",
                         step.value ? "= " + with_unit(*step.value, step.quantity.unit)
                                    : "non si può calcolare: " + std::string(fault_text(step.fault)));
        append_step_line(table, "dove ", step.condition);
        append_step_line(table, "governa ", step.governs);
        append_step_line(table, "fonte: ", step.source);
    }
}

}  // namespace

std::string to_table(const Answer& answer, bool with_steps) {
    std::string table;
    if (answer.kind) append_text_row(table, "Calcolo", describe(*answer.kind).meaning);
    if (!answer.municipality.empty())
        append_text_row(table, "Comune", answer.municipality + " (" + answer.province + ")");
    if (answer.zone) {
        append_text_row(table, "Zona",
                        std::to_string(*answer.zone) + " " + std::string(zone_caption(*answer.zone)));
    }
    if (answer.altitude) append_row(table, "Altitudine", shortest_number_text(*answer.altitude), "m");
    if (answer.trace) append_data(table, answer);
    if (answer.qsk)
        append_row(table, "qsk", fixed_number_text(*answer.qsk, quantities::area_load.decimals),
                   quantities::area_load.unit);
    for (const auto& [label, mu] : answer.calculation.coefficients)
        append_row(table, label, fixed_number_text(mu, quantities::coefficient.decimals),
                   quantities::coefficient.unit);
    for (const auto& [cell, value] : answer.calculation.results)
        append_row(table, cell->name, fixed_number_text(value, cell->quantity.decimals), cell->quantity.unit);
    if (!answer.report.empty()) append_text_row(table, "Relazione", answer.report);
    if (!answer.illustrated_report.empty())
        append_text_row(table, "Relazione illustrata", answer.illustrated_report);
    if (answer.trace && with_steps) append_trace(table, *answer.trace);
    return table;
}

}  // namespace coltre::cli
