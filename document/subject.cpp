#include "document/subject.h"

#include <algorithm>

namespace coltre {

const Datum* Subject::datum(std::string_view symbol) const {
    const auto found = std::ranges::find(trace().data, symbol, &Datum::symbol);
    return found == trace().data.end() ? nullptr : &*found;
}

const Step* Subject::step(std::string_view symbol) const {
    const auto found = std::ranges::find(trace().steps, symbol, &Step::symbol);
    return found == trace().steps.end() ? nullptr : &*found;
}

std::optional<double> Subject::computed(const ResultCell& result) const {
    const auto& all = outcome.calculation.results;
    const auto found = std::ranges::find(all, &result, &Result::cell);
    return found == all.end() ? std::nullopt : std::optional(found->value);
}

ProgramCells Subject::cells() const {
    ProgramCells cells;
    for (const Result& result : outcome.calculation.results)
        cells.*result.cell->cell = result.value;
    cells.qsk = outcome.qsk.value_or(0);
    return cells;
}

LoadInputs Subject::load_inputs() const {
    return {zone,
            *outcome.altitude,
            step("cT")->value.value_or(1),
            datum("CE")->value,
            datum("Ct")->value,
            outcome.entries};
}

bool Subject::sheds_snow() const {
    constexpr double no_snow_from = 60;  // degrees
    const CalculationEnd& end = outcome.calculation.end;
    if (end.fault != Fault::division_by_zero || outcome.qsk.value_or(0) == 0) return false;
    const Entries& entries = outcome.entries;
    if (end.cell == &results::qe_1) return entries.alfa >= no_snow_from;
    if (end.cell == &results::qe_2a) return entries.alfa1 >= no_snow_from;
    return end.cell == &results::qe_2c && entries.alfa2 >= no_snow_from;
}

}  // namespace coltre
