#include <algorithm>
#include <cmath>

#include "ui/sketches/drawing_parts.h"
#include "ui/sketches/families.h"
#include "ui/sketches/sketches.h"

namespace coltre {

namespace {

constexpr double slab_thickness = 110;
constexpr double step = 2580;         // x of the step
constexpr double lower_level = 3000;  // upper side of the lower roof
constexpr double room = 1250;         // of the load ordinates

double drift_length(double h) {
    return std::clamp(2 * h, 5.0, 15.0);
}

/// What the sketch is drawn from: the entries, or usual ones where they make no roof.
struct LevelChange {
    double b1, b2, h, alfa;
};

/// Upper roof, its wall down to the lower roof, and their dimensions.
void add_upper_roof(Drawing& drawing, const SpecialCaseEntries& entries, const LevelChange& shape,
                    double scale) {
    constexpr double max_rise = 950;
    const Fitted h = fit(shape.h * scale, 100, 1250);
    const double run = run_of_slope(shape.alfa, 2400, max_rise);
    const Fitted b1 = fit(shape.b1 * scale, std::min(300.0, run), run);
    const Point eaves{step, lower_level - h.twips};
    const Point ridge{step - b1.twips, eaves.y - b1.twips * std::tan(radians(shape.alfa))};
    add_section(drawing, Role::roof, slab_section({ridge, eaves}, slab_thickness));
    const double underneath = slab_thickness / std::cos(radians(shape.alfa));
    add_wall_stub(drawing, {step - slab_thickness, std::min(eaves.y + underneath, lower_level)},
                  {step, eaves.y}, lower_level + 420);
    if (b1.broken) add_break(drawing, {ridge.x, ridge.y + slab_thickness / 2}, true);
    add_pitch_mark(drawing, ridge, shape.alfa, 1, std::min(900.0, std::max(b1.twips, 400.0)));

    add_text(drawing, Role::dimension, quantity(drawing, "α", entries.alfa, "°"),
             {std::min(ridge.x + 1400, step - 60), ridge.y - 150}, Align::right);
    if (drawing.neutral) return;
    constexpr double height_line = step - 420;
    add_line(drawing, Role::axis, {height_line - 100, lower_level}, {step, lower_level});
    add_vertical_dimension(drawing, height_line, eaves.y, lower_level, h.broken);
    // Beside the dimension line, or below it where the step is low.
    const double middle = std::max(lower_level - h.twips / 2, eaves.y + 450);
    add_text(drawing, Role::dimension, quantity(drawing, "h", entries.h, " m"), {height_line - 130, middle},
             Align::right);
}

}  // namespace

Drawing level_change_sketch(const SpecialCaseEntries& entries, const ProgramCells* loads) {
    Drawing drawing;
    drawing.neutral = !is_drawable_length(entries.b1) || !is_drawable_length(entries.b2) ||
                      !is_drawable_length(entries.h) || !is_drawable_pitch(entries.alfa);
    const bool cut = drift_length(entries.h) >= entries.b2;
    const LevelChange usual{3, cut ? 4.0 : 8.0, 2, 10};
    const LevelChange shape =
        drawing.neutral ? usual : LevelChange{entries.b1, entries.b2, entries.h, entries.alfa};

    const double ls = drift_length(shape.h);
    const double drift_end = cut ? drift_end_cut : drift_end_whole;
    const double scale = (drift_end - step) / (cut ? shape.b2 : ls);
    const Fitted b2 = fit(shape.b2 * scale, drift_end - step, 7150 - step);
    const double roof_end = step + b2.twips;

    // Before a calculation: for a ground load of 1 kN/m2.
    const double mu2 = std::clamp(std::min((shape.b1 + shape.b2) / (2 * shape.h), 2 * shape.h), 0.8, 4.0);
    const double end_of_drift = cut ? 0.8 + (mu2 - 0.8) / ls * (ls - shape.b2) : 0.8;
    const double qs2 = loads != nullptr ? loads->level_qs2 : mu2;
    const double qs1 = loads != nullptr ? loads->level_qs1 : end_of_drift;
    const double largest = std::max(qs1, qs2);
    const double top2 = lower_level - ordinate(qs2, largest, room);
    const double top1 = lower_level - ordinate(qs1, largest, room);

    add_load(drawing, {{step, top2}, {drift_end, top1}}, lower_level, Role::drift_line);
    if (!cut) add_load(drawing, {{drift_end, top1}, {roof_end, top1}}, lower_level);
    add_section(drawing, Role::roof,
                slab_section({{step, lower_level}, {roof_end, lower_level}}, slab_thickness));
    if (b2.broken) add_break(drawing, {roof_end, lower_level + slab_thickness / 2}, true);
    add_upper_roof(drawing, entries, shape, scale);

    constexpr double drift_row = lower_level + 330;
    if (!cut) {
        add_horizontal_dimension(drawing, step, drift_end, drift_row, false, Role::drift_length);
        add_line(drawing, Role::drift_length, {drift_end, lower_level + slab_thickness},
                 {drift_end, drift_row + 90});
    }
    constexpr double width_row = lower_level + 900;
    if (!drawing.neutral) {
        const Fitted b1 = fit(shape.b1 * scale, std::min(300.0, run_of_slope(shape.alfa, 2400, 950)),
                              run_of_slope(shape.alfa, 2400, 950));
        add_horizontal_dimension(drawing, step - b1.twips, step, width_row, b1.broken);
        add_horizontal_dimension(drawing, step, roof_end, width_row, b2.broken);
        add_text(drawing, Role::dimension, quantity(drawing, "b1", entries.b1, " m"),
                 {step - 100, width_row + 190}, Align::right);
        add_text(drawing, Role::dimension, quantity(drawing, "b2", entries.b2, " m"),
                 {(step + roof_end) / 2, width_row + 190}, Align::centre);
    }

    constexpr double load_row = lower_level - room - 260;
    add_slot(drawing, "carico_14", {step + 60, load_row}, Align::left, "qs2 =", "kN/m²");
    add_slot(drawing, "carico_15", {7460, load_row}, Align::right, "qs1 =", "kN/m²");
    add_slot(drawing, "lsoutput", {(step + drift_end) / 2, drift_row + 230}, Align::centre, "ls =", "m");
    drawing.slots.back().visible = !cut;
    return drawing;
}

}  // namespace coltre
