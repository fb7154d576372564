#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/calculation.h"
#include "engine/traced.h"

// What the formulas are written with. They are templates over the number type: Checked calculates, Traced
// does the same operations and keeps each named quantity as a step.
namespace coltre {

/// The source of every rule that names no section of it.
inline constexpr std::string_view circular = "Circ. 4 luglio 1996";

/// The symbol of a step; where several quantities have one each, whose it is: d of qs_2a is "d_qs_2a".
struct Symbol {
    Symbol(std::string_view symbol_name) : name(symbol_name) {}
    Symbol(const char* symbol_name) : name(symbol_name) {}
    Symbol(std::string_view symbol_name, std::string_view whose) : name(symbol_name), of(whose) {}

    std::string_view name;
    std::string_view of;
};

/// Keeps nothing: what a run with Checked traces.
class NoTracer {
  public:
    explicit NoTracer(Trace* /*trace*/) {}

    static bool holds(bool condition, std::string_view /*words*/) { return condition; }
    static Checked quantity(Symbol /*symbol*/, Checked value) { return value; }
    static Checked stored(double ProgramCells::* /*cell*/, double value, Symbol /*fallback*/) {
        return value;
    }
    static Checked step(Symbol /*symbol*/, Quantity /*quantity*/, Checked value) { return value; }
    static void remember(double ProgramCells::* /*cell*/, const Checked& /*value*/) {}
    static void remember(const ResultCell& /*result*/, const Checked& /*value*/) {}
    static void stage(Stage /*stage*/) {}
    static void source(std::string_view /*source*/) {}
    static void words(std::string_view /*words*/) {}
};

/// Keeps the steps.
class Tracer {
  public:
    explicit Tracer(Trace* trace) : m_trace(*trace) {}

    /// Keeps a condition that holds for the next step: it has chosen its formula.
    bool holds(const Condition& condition, std::string_view words) {
        if (condition.holds) {
            m_condition = condition;
            m_words = words;
        }
        return condition.holds;
    }
    /// A number that formulas call by a symbol of the data.
    static Traced quantity(Symbol symbol, Checked value) {
        return Traced::named(std::string(symbol.name), value);
    }
    /// The number of a cell under the symbol of the step that set it. One that no step of this run has set is
    /// what an earlier calculation left.
    /// @param fallback  its symbol in that case
    Traced stored(double ProgramCells::*cell, double value, Symbol fallback);
    /// Adds the step, and calls the quantity by its symbol from here on. Before one that could not be
    /// computed, results that have a step under another symbol alone get one under their own.
    Traced step(Symbol symbol, Quantity quantity, const Traced& value);
    /// The step that was added last has set the cell.
    void remember(double ProgramCells::*cell, const Traced& value) {
        m_cells.emplace_back(cell, value.symbols());
    }
    /// The step that was added last has set the result, perhaps to be set again.
    void remember(const ResultCell& result, const Traced& value);
    void stage(Stage stage) { m_stage = stage; }
    void source(std::string_view source) { m_source = source; }
    void words(std::string_view words) { m_words = words; }

  private:
    [[nodiscard]] bool has_step(std::string_view symbol) const;
    void name_results();

    Trace& m_trace;
    Condition m_condition{};
    std::string_view m_words;  // of the next step, unless a limit has some
    Stage m_stage{};
    std::string_view m_source;
    std::vector<std::pair<const ResultCell*, Traced>> m_results;          // set by this run, the last value
    std::vector<std::pair<double ProgramCells::*, std::string>> m_cells;  // set by this run, and as what
};

/// A calculation while it runs. Until the first fault it sets cells and records results; after it nothing
/// changes any more, so that formulas stand one below the other as in the norm.
template <typename Number>
class Run {
  public:
    using Tracing = std::conditional_t<std::is_same_v<Number, Checked>, NoTracer, Tracer>;

    Run(ProgramCells& cells, Trace* trace) : m_cells(cells), m_tracing(trace) {}

    /// Sets memory aside for the record of a calculation, which few need more of.
    void make_room() {
        m_calculation.results.reserve(8);
        m_calculation.coefficients.reserve(4);
        m_calculation.load_cases.reserve(4);
    }

    /// What the formulas that follow are for.
    void stage(Stage stage) { m_tracing.stage(stage); }

    /// Where the formulas that follow come from.
    void source(std::string_view source) { m_tracing.source(source); }

    /// What is to be said of the next step, in Italian.
    void words(std::string_view words) { m_tracing.words(words); }

    /// Takes a branch: true if the condition holds. The next step comes about by it.
    /// @param words  Italian: what the branch is called
    template <typename Comparison>
    bool holds(const Comparison& condition, std::string_view words = {}) {
        return m_tracing.holds(condition, words);
    }

    /// A number that the calculation starts from.
    /// @param value  finite
    Number entry(std::string_view symbol, double value) { return m_tracing.quantity(symbol, value); }

    /// The number of a cell.
    /// @param fallback  symbol of one that this run has not set
    Number stored(double ProgramCells::*cell, Symbol fallback) {
        return m_tracing.stored(cell, m_cells.*cell, fallback);
    }

    /// Names a quantity on the way to a result.
    Number let(Symbol symbol, Quantity quantity, const Number& value) {
        return m_calculation.end.stopped() ? value : m_tracing.step(symbol, quantity, value);
    }

    /// Sets a cell that is no result, or stops.
    Number store(double ProgramCells::*cell, Symbol symbol, const Number& value,
                 Quantity quantity = quantities::coefficient) {
        if (stops(value, symbol.name, quantity)) return value;
        m_cells.*cell = value.value();
        Number named = m_tracing.step(symbol, quantity, value);
        m_tracing.remember(cell, named);
        return named;
    }

    /// Sets a result, or stops.
    /// @param symbol  of the step, where a later one sets the same result again
    Number set(const ResultCell& result, const Number& value, std::string_view symbol) {
        if (stops(value, result.name, result.quantity, &result)) return value;
        m_cells.*result.cell = value.value();
        auto& recorded = m_calculation.results;
        const auto earlier = std::ranges::find(recorded, &result, &Result::cell);
        if (earlier != recorded.end()) {
            earlier->value = value.value();
        } else {
            recorded.push_back({&result, value.value()});
        }
        Number named = m_tracing.step(symbol, result.quantity, value);
        m_tracing.remember(result, named);
        return named;
    }
    Number set(const ResultCell& result, const Number& value) { return set(result, value, result.name); }

    /// Records the shape coefficient of a load case.
    void coefficient(std::string_view label, const Number& mu) {
        if (!m_calculation.end.stopped()) m_calculation.coefficients.push_back({label, mu.value()});
    }

    /// Records a load case that is complete.
    void load_case(std::string_view label, const Number& mu, const Number& qs) {
        add_load_case(label, mu, qs, std::nullopt);
    }
    void load_case(std::string_view label, const Number& mu, const Number& qs, const Number& qe) {
        add_load_case(label, mu, qs, qe.value());
    }

    /// Stops where the number is a fault.
    /// @param name  of what the step was to compute   @param cell  its row, if it is a result
    /// @return true if the calculation has stopped, here or before
    bool stops(const Number& number, std::string_view name, Quantity quantity = {},
               const ResultCell* cell = nullptr) {
        if (m_calculation.end.stopped()) return true;
        if (number.fault() == Fault::none) return false;
        m_tracing.step(name, quantity, number);
        m_calculation.end = {number.fault(), name, cell};
        return true;
    }

    [[nodiscard]] ProgramCells& cells() { return m_cells; }
    [[nodiscard]] Calculation& calculation() { return m_calculation; }

  private:
    void add_load_case(std::string_view label, const Number& mu, const Number& qs, std::optional<double> qe) {
        if (!m_calculation.end.stopped())
            m_calculation.load_cases.push_back({label, mu.value(), qs.value(), qe});
    }

    ProgramCells& m_cells;
    Tracing m_tracing;
    Calculation m_calculation;
};

}  // namespace coltre
