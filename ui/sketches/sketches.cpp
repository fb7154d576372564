#include "ui/sketches/sketches.h"

#include "engine/roof_loads.h"
#include "engine/special_loads.h"
#include "ui/sketches/case_sketches.h"
#include "ui/sketches/drawing_parts.h"

namespace coltre {

ProgramCells results_of_unit_ground_load(const Roof& roof) {
    ProgramCells cells;
    cells.qsk = 1;
    calculate_roof(cells, roof);
    return cells;
}

ProgramCells results_of_unit_ground_load(const SpecialCaseEntries& entries) {
    ProgramCells cells;
    cells.qsk = 1;
    calculate_special_case(cells, entries);
    return cells;
}

void mark_as_pending(Drawing& drawing) {
    // A row of its own above the drawing, and as much room below, so that the drawing stays where it was.
    constexpr double row = 320;
    drawing.page.y -= row;
    drawing.page.height += 2 * row;
    add_text(drawing, Role::caption, "numeri dell'ultimo calcolo, non di questi dati",
             {drawing.page.x + drawing.page.width / 2, drawing.page.y + row / 2}, Align::centre);
}

Drawing sketch_roof(const Roof& roof, const ProgramCells* loads) {
    switch (roof.family) {
        case RoofFamily::one_pitch:
            return one_pitch_sketch(roof, loads);
        case RoofFamily::two_pitches:
            return two_pitches_sketch(roof, loads);
        case RoofFamily::several_pitches:
            return several_pitches_sketch(roof, loads);
        case RoofFamily::cylindrical:
            return cylindrical_sketch(roof, loads);
    }
    return {};
}

Drawing sketch_special_case(const SpecialCaseEntries& entries, const ProgramCells* loads) {
    switch (entries.special_case) {
        case SpecialCase::level_change:
            return level_change_sketch(entries, loads);
        case SpecialCase::wall:
            return wall_sketch(entries, loads);
        case SpecialCase::snow_guard:
            return snow_guard_sketch(entries);
    }
    return {};
}

}  // namespace coltre
