#include <algorithm>

#include "engine/run.h"

namespace coltre {

Traced Tracer::stored(double ProgramCells::*cell, double value, Symbol fallback) {
    const auto set = std::ranges::find(m_cells, cell, &std::pair<double ProgramCells::*, std::string>::first);
    if (set != m_cells.end()) return Traced::named(set->second, value);

    const std::string symbol(fallback.name);
    const bool known =
        has_step(symbol) || std::ranges::find(m_trace.data, symbol, &Datum::symbol) != m_trace.data.end();
    if (!known) m_trace.data.push_back({symbol, value, {}, {}});
    return Traced::named(symbol, value);
}

void Tracer::remember(const ResultCell& result, const Traced& value) {
    const auto set = std::ranges::find(m_results, &result, &std::pair<const ResultCell*, Traced>::first);
    if (set != m_results.end()) {
        set->second = value;
    } else {
        m_results.emplace_back(&result, value);
    }
}

bool Tracer::has_step(std::string_view symbol) const {
    return std::ranges::find(m_trace.steps, symbol, &Step::symbol) != m_trace.steps.end();
}

void Tracer::name_results() {
    for (const auto& [result, value] : m_results) {
        if (has_step(result->name)) continue;
        m_trace.steps.push_back({.symbol = std::string(result->name),
                                 .formula = value.symbols(),
                                 .numbers = value.numbers(),
                                 .value = value.value(),
                                 .quantity = result->quantity,
                                 .source = m_source,
                                 .words = "resta il valore già calcolato",
                                 .stage = m_stage});
    }
}

Traced Tracer::step(Symbol symbol, Quantity quantity, const Traced& value) {
    // Nothing follows the step that could not be computed.
    if (!m_trace.steps.empty() && !m_trace.steps.back().value) return value;

    std::string name(symbol.name);
    if (!symbol.of.empty()) name.append("_").append(symbol.of);
    if (value.fault() != Fault::none) name_results();
    if (has_step(name)) name += "_finale";
    Step step{.symbol = name,
              .formula = value.symbols(),
              .numbers = value.numbers(),
              .value = {},
              .fault = value.fault(),
              .condition = m_condition.symbols,
              .condition_numbers = m_condition.numbers,
              .governs = {},
              .quantity = quantity,
              .source = m_source,
              .words = m_words,
              .stage = m_stage};
    if (value.fault() == Fault::none) {
        step.value = value.value();
        step.governs = value.governs();
        if (!step.governs.empty()) step.words = value.words();
    }
    m_trace.steps.push_back(std::move(step));
    m_condition = {};
    m_words = {};
    return Traced::named(name, value.checked());
}

}  // namespace coltre
