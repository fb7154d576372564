#include <algorithm>
#include <cmath>

#include "drawings/case_sketches.h"
#include "drawings/drawing_parts.h"
#include "drawings/sketches.h"
#include "engine/special_loads.h"

namespace coltre {

namespace {

constexpr double step = 2580;        // x of the step
constexpr double room_above = 1250;  // of the load ordinates

/// What is drawn: the entries, or usual ones where they make no roof, brought to the room of the sketch.
struct LevelChange {
    double b1, b2, h, alfa;
    bool cut;

    Fitted upper_width, lower_width, height;
    double rise = 0;         // of the upper roof
    double lower_level = 0;  // y of the lower roof's upper side

    [[nodiscard]] double drift_end() const { return cut ? drift_end_cut : drift_end_whole; }
};

void fit_to_page(LevelChange& shape, const Rect& page) {
    const double slope = std::tan(radians(shape.alfa));
    const double scale =
        (shape.drift_end() - step) / (shape.cut ? shape.b2 : drift_length(Checked(shape.h)).value());
    const double widest = run_of_slope(shape.alfa, 2350, 950);
    shape.upper_width = fit(shape.b1 * scale, std::min(300.0, widest), widest);
    shape.lower_width = fit(shape.b2 * scale, shape.drift_end() - step, 7150 - step);
    shape.height = fit(shape.h * scale, 100, 1250);
    shape.rise = shape.upper_width.twips * slope;
    // The drawing stands halfway up the page, with its labels and dimensions.
    constexpr double below = 1210;
    const double above = std::max(room_above + 420, shape.height.twips + shape.rise + 340);
    shape.lower_level = page.y + (page.height + above - below) / 2;
}

/// Upper roof and its wall down to the lower roof.
void add_upper_roof(Drawing& drawing, const Entries& entries, const LevelChange& shape) {
    const double width = shape.upper_width.twips;
    const Point eaves{step, shape.lower_level - shape.height.twips};
    const Point ridge{step - width, eaves.y - shape.rise};
    add_section(drawing, Role::roof, slab_section({ridge, eaves}, slab_thickness));
    const double slope = std::tan(radians(shape.alfa));
    const double under_slab = slab_thickness / std::cos(radians(shape.alfa)) - slab_thickness * slope;
    add_wall_stub(drawing, {step - slab_thickness, eaves.y + under_slab}, {step, eaves.y},
                  shape.lower_level + 220);
    if (shape.upper_width.broken) add_slab_break(drawing, ridge, eaves, slab_thickness);
    add_pitch_mark(drawing, ridge, shape.alfa, 1, std::clamp(width, 400.0, 900.0));
    const std::string pitch = pitch_text(drawing, "α", entries.alfa);
    add_text(drawing, Role::dimension, pitch,
             {std::min(ridge.x + 100 + text_width(pitch), step - 60), ridge.y - 200}, Align::right);
}

void add_dimensions(Drawing& drawing, const Entries& entries, const LevelChange& shape) {
    constexpr double height_line = step - 420;
    const double level = shape.lower_level;
    const double eaves = level - shape.height.twips;
    for (const double y : {eaves, level})
        add_line(drawing, Role::axis, {height_line - 100, y}, {step, y});
    add_vertical_dimension(drawing, height_line, eaves, level, shape.height.broken);
    // Beside the dimension line, or below it where the step is low.
    const double middle = std::max(level - shape.height.twips / 2, eaves + 450);
    add_text(drawing, Role::dimension, quantity(drawing, "h", entries.h, " m"), {height_line - 130, middle},
             Align::right);

    const double width_row = level + 900;
    add_line(drawing, Role::axis, {step, level + 300}, {step, width_row + 90});
    const double roof_end = step + shape.lower_width.twips;
    add_horizontal_dimension(drawing, step - shape.upper_width.twips, step, width_row,
                             shape.upper_width.broken);
    add_horizontal_dimension(drawing, step, roof_end, width_row, shape.lower_width.broken);
    add_text(drawing, Role::dimension, quantity(drawing, "b1", entries.b1, " m"),
             {step - 100, width_row + 190}, Align::right);
    add_text(drawing, Role::dimension, quantity(drawing, "b2", entries.b2, " m"),
             {(step + roof_end) / 2, width_row + 190}, Align::centre);
}

}  // namespace

Drawing level_change_sketch(const Entries& entries, const ProgramCells* loads, bool drift_length_shown) {
    Drawing drawing;
    drawing.neutral = !is_drawable_length(entries.b1) || !is_drawable_length(entries.b2) ||
                      !is_drawable_length(entries.h) || !is_drawable_pitch(entries.alfa);
    if (loads != nullptr) drift_length_shown = drift_lies_on_roof(entries, *loads);
    // The drift follows the entries even where they cannot be drawn.
    const bool cut = drift_is_cut(drift_length(Checked(entries.h)).value(), entries.b2);
    LevelChange shape{entries.b1, entries.b2, entries.h, entries.alfa, cut, {}, {}, {}};
    if (drawing.neutral) shape = {3, cut ? 4.0 : 8.0, 2, 10, cut, {}, {}, {}};
    fit_to_page(shape, drawing.page);
    const double level = shape.lower_level;
    const double drift_end = shape.drift_end();
    const double roof_end = step + shape.lower_width.twips;

    const ProgramCells results =
        loads != nullptr ? *loads
                         : results_of_unit_ground_load(
                               {.kind = Kind::level_change, .b1 = shape.b1, .b2 = shape.b2, .h = shape.h});
    const double qs2 = results.level_qs2;
    const double qs1 = results.level_qs1;
    const double largest = std::max(qs1, qs2);
    const double top2 = level - ordinate(qs2, largest, room_above);
    const double top1 = level - ordinate(qs1, largest, room_above);

    add_load(drawing, {{step, top2}, {drift_end, top1}}, level, Role::drift_line);
    if (!cut) add_load(drawing, {{drift_end, top1}, {roof_end, top1}}, level);
    add_section(drawing, Role::roof, slab_section({{step, level}, {roof_end, level}}, slab_thickness));
    if (shape.lower_width.broken) add_slab_break(drawing, {roof_end, level}, {step, level}, slab_thickness);
    add_upper_roof(drawing, entries, shape);
    const double drift_row = level + 390;
    if (drift_length_shown) {
        add_horizontal_dimension(drawing, step, drift_end, drift_row, false, Role::drift_length);
        add_line(drawing, Role::drift_length, {drift_end, level + slab_thickness},
                 {drift_end, drift_row + 90});
    }
    if (drawing.neutral) {
        add_caption(drawing, "", {page_middle, level + 1050});
    } else {
        add_dimensions(drawing, entries, shape);
    }

    const double beside_step = step + 60 + slot_width("qs2 =", "kN/m²") + 20;
    add_slot(drawing, "carico_14", {step + 60, level - room_above - 260}, Align::left, "qs2 =", "kN/m²");
    add_slot(drawing, "carico_15", {std::max(drift_end + 60, beside_step), top1 - 260}, Align::left,
             "qs1 =", "kN/m²");
    add_slot(drawing, "lsoutput", {(step + drift_end) / 2, drift_row + 210}, Align::centre, "ls =", "m");
    drawing.label_slots.back().visible = drift_length_shown;
    return drawing;
}

}  // namespace coltre
