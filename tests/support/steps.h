#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <string>
#include <vector>

#include "calculate/Calcola.h"
#include "calculate/Calcola2.h"
#include "tests/support/formula.h"

// Whether the steps of a calculation obey engine/trace.h and add up to its results.
namespace coltre {

/// The click that the window of the calculation makes.
inline Outcome click(const Fields& fields, Program& program) {
    return describe(fields.kind).window == Window::main ? Calcola(fields, program)
                                                        : Calcola2(fields, program);
}

namespace steps {

/// @param symbols  of the data and of the steps before
inline std::string flaw_of_step(const Step& step, const SymbolValues& symbols) {
    const auto flaw = [&](const char* what) { return step.symbol + ": " + what; };
    for (const auto& [text, known] :
         {std::pair(step.formula, symbols), std::pair(step.numbers, SymbolValues())}) {
        FormulaReader reader(text, known);
        const auto value = reader.formula();
        if (!value) return flaw("no formula of what is known: ") + text;
        if (step.value && !(reader.finite() && *value == *step.value)) return flaw("another value: ") + text;
        if (!step.value && step.fault != Fault::incongruent_dimensions && reader.finite())
            return flaw("could be computed: ") + text;
    }
    if (step.value.has_value() != (step.fault == Fault::none)) return flaw("value or fault");
    if (step.condition.empty() != step.condition_numbers.empty()) return flaw("condition without numbers");
    if (!step.condition.empty() && !(FormulaReader(step.condition, symbols).holds() &&
                                     FormulaReader(step.condition_numbers, {}).holds()))
        return flaw("does not hold: ") + step.condition + "; " + step.condition_numbers;
    if (!step.governs.empty() && step.value &&
        (step.formula.find(step.governs) == std::string::npos ||
         FormulaReader(step.governs, symbols).formula() != step.value))
        return flaw("does not govern: ") + step.governs;
    return step.source.empty() ? flaw("no source") : "";
}

/// What is wrong with the steps of a click; empty if nothing is.
inline std::string flaw_of(const Outcome& outcome) {
    const Trace& trace = *outcome.trace;
    SymbolValues symbols;
    for (const Datum& datum : trace.data) {
        if (!symbols.emplace(datum.symbol, datum.value).second) return "twice: " + datum.symbol;
        const auto uses = [&](const Step& step) {
            return step.formula.find(datum.symbol) != std::string::npos;
        };
        if (datum.symbol.ends_with("_precedente") && std::ranges::none_of(trace.steps, uses))
            return "in no formula: " + datum.symbol;
    }
    for (const Step& step : trace.steps) {
        if (std::string flaw = flaw_of_step(step, symbols); !flaw.empty()) return flaw;
        if (!symbols.emplace(step.symbol, step.value.value_or(0)).second) return "twice: " + step.symbol;
        const bool last = &step == &trace.steps.back();
        if (!step.value && !(last && step.fault == outcome.fault)) return "goes on: " + step.symbol;
    }

    const auto is_step = [&](std::string_view symbol, double value) {
        return std::ranges::any_of(trace.steps, [&](const Step& step) {
            return step.value == value && (symbol.empty() || step.symbol == symbol);
        });
    };
    if (outcome.qsk && !is_step("qsk", *outcome.qsk)) return "no step: qsk";
    for (const auto& [cell, value] : outcome.calculation.results) {
        if (!is_step(cell->name, value)) return "no step: " + std::string(cell->name);
    }
    for (const auto& [label, mu] : outcome.calculation.coefficients) {
        if (!is_step("", mu)) return "no step: " + std::string(label);
    }
    const CalculationEnd& end = outcome.calculation.end;
    if (!end.stopped()) return {};
    if (trace.steps.empty() || trace.steps.back().value) return "the stop is no step";
    const Step& stop = trace.steps.back();
    if (end.cell != nullptr && stop.symbol.starts_with(end.cell->name) &&
        stop.quantity.unit != end.cell->quantity.unit)
        return "the stop has no unit: " + stop.symbol;
    return {};
}

/// The bits of all that a calculation sets.
inline std::vector<std::uint64_t> bits_of(const ProgramCells& cells) {
    std::vector<std::uint64_t> bits;
    for (const double value : {cells.qsk, cells.mu1, cells.mu2, cells.mu3})
        bits.push_back(std::bit_cast<std::uint64_t>(value));
    for (const ResultCell* result : results::all)
        bits.push_back(std::bit_cast<std::uint64_t>(cells.*result->cell));
    return bits;
}

/// Makes the click with its steps and without them.
/// @param program  as it is before the click; as it is after it
/// @return what is wrong with the steps, or what they changed; empty if nothing is
inline std::string flaw_of_click(Fields fields, Program& program) {
    Program untraced = program;
    fields.traced = true;
    const Outcome with_steps = click(fields, program);
    fields.traced = false;
    const Outcome without = click(fields, untraced);
    if (bits_of(program.cells) != bits_of(untraced.cells)) return "other cells";
    if (with_steps.messages != without.messages) return "other messages";
    if (with_steps.complete != without.complete || without.trace) return "another outcome";
    return flaw_of(with_steps);
}

}  // namespace steps

}  // namespace coltre
