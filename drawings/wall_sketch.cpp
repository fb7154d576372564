#include <algorithm>

#include "drawings/case_sketches.h"
#include "drawings/drawing_parts.h"
#include "engine/special_loads.h"

namespace coltre {

Drawing wall_sketch(const Entries& entries, const ProgramCells* loads) {
    Drawing drawing;
    drawing.neutral = !is_drawable_length(entries.h);
    const double height = drawing.neutral ? 2.5 : entries.h;
    const double ls = drift_length(Checked(height)).value();

    constexpr double wall_face = 1650;
    constexpr double wall_thickness = 200;
    constexpr double drift = 3600;  // length of the drift
    constexpr double drift_end = wall_face + drift;
    constexpr double roof_end = 6500;
    constexpr double level = 2650;  // upper side of the roof
    constexpr double room = 1050;   // of the load ordinates
    const Fitted h = fit(height * drift / ls, 100, 1900);

    const ProgramCells results =
        loads != nullptr ? *loads : results_of_unit_ground_load({.kind = Kind::wall, .h = height});
    const double qs1 = results.wall_qs1;
    const double qs2 = results.wall_qs2;
    const double largest = std::max(qs1, qs2);
    const double top1 = level - ordinate(qs1, largest, room);
    const double top2 = level - ordinate(qs2, largest, room);

    // Section, with the load diagram on the roof.
    add_load(drawing, {{wall_face, top2}, {drift_end, top1}}, level, Role::drift_line);
    add_load(drawing, {{drift_end, top1}, {roof_end, top1}}, level);
    add_section(drawing, Role::roof, slab_section({{wall_face, level}, {roof_end, level}}, slab_thickness));
    add_slab_break(drawing, {roof_end, level}, {wall_face, level}, slab_thickness);
    add_line(drawing, Role::wall, {wall_face - wall_thickness, level - h.twips},
             {wall_face, level - h.twips});
    add_wall_stub(drawing, {wall_face - wall_thickness, level - h.twips}, {wall_face, level - h.twips},
                  level + 220);
    if (!drawing.neutral) {
        constexpr double height_line = wall_face - wall_thickness - 200;
        add_vertical_dimension(drawing, height_line, level - h.twips, level, h.broken);
        add_line(drawing, Role::axis, {height_line - 100, level}, {wall_face - wall_thickness, level});
        add_text(drawing, Role::dimension, quantity(drawing, "h", entries.h, " m"),
                 {height_line - 130, level - h.twips / 2}, Align::right, 1080);
    }
    constexpr double section_row = level + 400;
    add_line(drawing, Role::axis, {wall_face, level + 300}, {wall_face, section_row + 100});
    add_line(drawing, Role::axis, {drift_end, level + slab_thickness}, {drift_end, section_row + 100});
    add_horizontal_dimension(drawing, wall_face, drift_end, section_row);

    // Plan: the loaded zone along the wall.
    constexpr double plan_top = 3500;
    constexpr double plan_bottom = 4180;
    constexpr double plan_row = plan_top + 170;
    add_section(drawing, Role::wall,
                {{wall_face - wall_thickness, plan_top},
                 {wall_face, plan_top},
                 {wall_face, plan_bottom},
                 {wall_face - wall_thickness, plan_bottom}});
    drawing.shapes.push_back(
        {Role::snow,
         {{wall_face, plan_top}, {drift_end, plan_top}, {drift_end, plan_bottom}, {wall_face, plan_bottom}},
         true});
    add_line(drawing, Role::axis, {drift_end, plan_top}, {roof_end, plan_top});
    add_line(drawing, Role::axis, {drift_end, plan_bottom}, {roof_end, plan_bottom});
    add_horizontal_dimension(drawing, wall_face, drift_end, plan_row);

    constexpr double load_row = level - room - 260;
    constexpr double middle = (wall_face + drift_end) / 2;
    add_slot(drawing, "carico_17", {wall_face + 60, load_row}, Align::left, "qs2 =", "kN/m²");
    add_slot(drawing, "carico_16", {drift_end + 60, top1 - 260}, Align::left, "qs1 =", "kN/m²");
    add_slot(drawing, "ls2outputA", {middle, section_row + 210}, Align::centre, "ls =", "m");
    add_slot(drawing, "ls2outputB", {middle, plan_row + 230}, Align::centre, "ls =", "m");
    if (drawing.neutral) add_caption(drawing, "", {page_middle, 300});
    add_text(drawing, Role::caption, "sezione", {100, level + 250}, Align::left);
    add_text(drawing, Role::caption, "pianta", {100, (plan_top + plan_bottom) / 2}, Align::left);
    return drawing;
}

}  // namespace coltre
