#include <algorithm>

#include "engine/run.h"

namespace coltre {

Traced Tracer::stored(double ProgramCells::*cell, double value, Symbol fallback) {
    const auto set = std::ranges::find(m_cells, cell, &std::pair<double ProgramCells::*, std::string>::first);
    if (set != m_cells.end()) return Traced::named(set->second, value);

    const std::string symbol(fallback.name);
    const bool known = std::ranges::find(m_trace.steps, symbol, &Step::symbol) != m_trace.steps.end() ||
                       std::ranges::find(m_trace.data, symbol, &Datum::symbol) != m_trace.data.end();
    if (!known) m_trace.data.push_back({symbol, value, {}, {}});
    return Traced::named(symbol, value);
}

Traced Tracer::step(Symbol symbol, Quantity quantity, const Traced& value) {
    // Nothing follows the step that could not be computed.
    if (!m_trace.steps.empty() && !m_trace.steps.back().value) return value;

    std::string name(symbol.name);
    if (!symbol.of.empty()) name.append("_").append(symbol.of);
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
              .words = m_words};
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
