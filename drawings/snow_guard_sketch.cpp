#include <cmath>

#include "drawings/case_sketches.h"
#include "drawings/drawing_parts.h"

namespace coltre {

Drawing snow_guard_sketch(const Entries& entries) {
    Drawing drawing;
    drawing.neutral = !is_drawable_length(entries.b) || !is_drawable_pitch(entries.alfa);
    const double pitch = drawing.neutral ? 20 : entries.alfa;

    constexpr double base = 1180;  // of the load diagram
    constexpr double max_rise = 1850;
    constexpr double centre = 4900;
    const double cosine = std::cos(radians(pitch));
    const double sine = std::sin(radians(pitch));
    const double run = run_of_slope(pitch, 4200, max_rise);
    const double rise = run * sine / cosine;
    const Point foot{centre - run / 2, 2450 + 950 * rise / max_rise};  // of the obstacle
    const Point ridge{centre + run / 2, foot.y - rise};
    /// A point by its distance up the slope from the obstacle and its height above the roof.
    const auto on_slope = [&](double along, double above) {
        return Point{foot.x + along * cosine - above * sine, foot.y - along * sine - above * cosine};
    };

    const double height = ordinate(entries.qs, entries.qs, 650);
    add_load(drawing, {{foot.x, base - height}, {ridge.x, base - height}}, base);
    const Point eaves = on_slope(-380, 0);
    // A piece of the other side shows where the ridge is, unless it were too steep to be told apart.
    const double beyond = run_of_slope(pitch, 300, 300);
    const Point other_side{ridge.x + beyond, ridge.y + beyond * sine / cosine};
    if (beyond > slab_thickness) {
        add_section(drawing, Role::roof, slab_section({eaves, ridge, other_side}, slab_thickness));
        add_slab_break(drawing, other_side, ridge, slab_thickness);
    } else {
        add_section(drawing, Role::roof, slab_section({eaves, ridge}, slab_thickness));
    }
    add_section(drawing, Role::wall,
                {on_slope(-100, 0), on_slope(-100, 300), on_slope(0, 300), on_slope(0, 0)});
    add_pitch_mark(drawing, ridge, pitch, -1, 900);
    if (height > 0 && sine > 0) {
        drawing.arrows.push_back({Role::point_load, on_slope(750, 160), on_slope(0, 160)});
    }
    add_text(drawing, Role::dimension, pitch_text(drawing, "α", entries.alfa), {ridge.x - 80, ridge.y - 150},
             Align::right);
    if (!drawing.neutral) {
        const double width_row = foot.y + 560;
        const double top = height > 0 ? base : ridge.y;
        add_line(drawing, Role::axis, {foot.x, top}, {foot.x, width_row + 90});
        add_line(drawing, Role::axis, {ridge.x, top}, {ridge.x, width_row + 90});
        add_horizontal_dimension(drawing, foot.x, ridge.x, width_row);
        add_text(drawing, Role::dimension, quantity(drawing, "b", entries.b, " m"), {centre, width_row + 180},
                 Align::centre);
    }
    if (drawing.neutral) add_caption(drawing, "", {page_middle, 4100});
    if (height > 0) {
        add_text(drawing, Role::dimension, quantity(drawing, "qs", entries.qs, " kN/m²"), {centre, 330},
                 Align::centre);
    }
    add_slot(drawing, "Fsoutput", {on_slope(-100, 300).x - 60, on_slope(-100, 260).y}, Align::right,
             "Fs =", "kN/m");
    return drawing;
}

}  // namespace coltre
