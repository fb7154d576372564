#include "drawings/sketches.h"

#include "drawings/case_sketches.h"
#include "drawings/drawing_parts.h"
#include "engine/calculation.h"
#include "engine/special_loads.h"

namespace coltre {

namespace {

constexpr double note_row = 320;

/// A row of its own above the drawing.
void add_row_above(Drawing& drawing, const std::string& text) {
    Rect& page = drawing.page;
    page.y -= note_row;
    page.height += note_row;
    add_text(drawing, Role::caption, text, {page.x + page.width / 2, page.y + note_row / 2}, Align::centre);
}

}  // namespace

ProgramCells results_of_unit_ground_load(const Entries& entries) {
    ProgramCells cells;
    cells.qsk = 1;
    calculate(cells, entries);
    return cells;
}

void mark_as_pending(Drawing& drawing) {
    drawing.pending = true;
    add_row_above(drawing, pending_results);
    drawing.page.height += note_row;  // as much room below, so that the drawing stays where it was
}

void add_notes(Drawing& drawing, std::span<const std::string> notes) {
    // The last note stands lowest.
    for (std::size_t i = notes.size(); i > 0; --i)
        add_row_above(drawing, notes[i - 1]);
}

bool drift_lies_on_roof(const Entries& entries, const ProgramCells& loads) {
    return !drift_is_cut(loads.level_ls, entries.b2);
}

Drawing sketch(const Entries& entries, const ProgramCells* loads, bool drift_length_shown) {
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
            return level_change_sketch(entries, loads, drift_length_shown);
        case Kind::wall:
            return wall_sketch(entries, loads);
        case Kind::snow_guard:
            return snow_guard_sketch(entries);
    }
    return {};
}

}  // namespace coltre
