#include "engine/calculation.h"

#include <utility>

#include "engine/roof_loads.h"
#include "engine/special_loads.h"

namespace coltre {

namespace {

template <typename Number>
Calculation calculate_with(ProgramCells& cells, const Entries& entries, Trace* trace) {
    Run<Number> run(cells, trace);
    run.make_room();
    switch (entries.kind) {
        case Kind::one_pitch:
            one_pitch(run, entries);
            break;
        case Kind::two_pitches:
            two_pitches(run, entries);
            break;
        case Kind::several_pitches:
            several_pitches(run, entries);
            break;
        case Kind::cylindrical:
            cylindrical(run, entries);
            break;
        case Kind::level_change:
            level_change(run, entries);
            break;
        case Kind::wall:
            wall(run, entries);
            break;
        case Kind::snow_guard:
            snow_guard(run, entries);
            break;
    }
    return std::move(run.calculation());
}

}  // namespace

Calculation calculate(ProgramCells& cells, const Entries& entries, Trace* trace) {
    return trace != nullptr ? calculate_with<Traced>(cells, entries, trace)
                            : calculate_with<Checked>(cells, entries, nullptr);
}

}  // namespace coltre
