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

std::string Subject::site() const {
    return municipality.empty() ? "" : municipality + " (" + province + ")";
}

const Datum* Subject::steep_pitch() const {
    constexpr double no_snow_from = 60;  // degrees
    const CalculationEnd& end = outcome.calculation.end;
    if (end.fault != Fault::division_by_zero || outcome.qsk.value_or(0) == 0) return nullptr;
    const Datum* const pitch = end.cell == &results::qe_1    ? datum("alfa")
                               : end.cell == &results::qe_2a ? datum("alfa1")
                               : end.cell == &results::qe_2c ? datum("alfa2")
                                                             : nullptr;
    return pitch != nullptr && pitch->value >= no_snow_from ? pitch : nullptr;
}

}  // namespace coltre
