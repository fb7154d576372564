#include "drawings/sketches.h"

#include "drawings/case_sketches.h"
#include "drawings/drawing_parts.h"
#include "engine/calculation.h"

namespace coltre {

ProgramCells results_of_unit_ground_load(const Entries& entries) {
    ProgramCells cells;
    cells.qsk = 1;
    calculate(cells, entries);
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

Drawing sketch(const Entries& entries, const ProgramCells* loads) {
    switch (entries.kind) {
        case Kind::one_pitch:
            return one_pitch_sketch(entries, loads);
        case Kind::two_pitches:
            return two_pitches_sketch(entries, loads);
        case Kind::several_pitches:
            return several_pitches_sketch(entries, loads);
        case Kind::cylindrical:
            return cylindrical_sketch(entries, loads);
        case Kind::level_change:
            return level_change_sketch(entries, loads);
        case Kind::wall:
            return wall_sketch(entries, loads);
        case Kind::snow_guard:
            return snow_guard_sketch(entries);
    }
    return {};
}

}  // namespace coltre
