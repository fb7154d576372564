#include <algorithm>
#include <array>
#include <cmath>

#include "drawings/case_sketches.h"
#include "drawings/drawing_parts.h"
#include "engine/Calcolo_Mu.h"

namespace coltre {

namespace {

constexpr double wall_thickness = 120;
constexpr double wall_end = 300;    // below the eaves
constexpr double usual_pitch = 20;  // of a neutral sketch
constexpr double top_row = 240;     // halfway up the labels of the load diagrams
constexpr double bottom_row = 4150;

/// One side of a roof: horizontal run and fall, twips.
struct Side {
    double pitch;
    double run;
    double fall;
};

Side make_side(double pitch, double max_run, double max_fall) {
    const double run = run_of_slope(pitch, max_run, max_fall);
    return {pitch, run, run * std::tan(radians(pitch))};
}

/// A uniform load, or none, above a slope from x0 to x1.
void add_uniform_load(Drawing& drawing, double x0, double x1, double base, double height) {
    add_load(drawing, {{x0, base - height}, {x1, base - height}}, base);
}

/// The wall under a side, at its eaves.
/// @param inwards    direction from the eaves to the ridge, +1 or -1
/// @param thickness  of the slab
void add_eaves_wall(Drawing& drawing, Point eaves, const Side& side, int inwards, double thickness,
                    double lower_end) {
    constexpr double overhang = 0.16;  // of the run
    const double slope = std::tan(radians(side.pitch));
    const double underneath = thickness / std::cos(radians(side.pitch));
    const auto under_slab = [&](double distance) {
        return Point{eaves.x + inwards * distance, eaves.y - distance * slope + underneath};
    };
    const double outer = overhang * side.run;
    Point left = under_slab(outer);
    Point right = under_slab(outer + wall_thickness);
    if (inwards < 0) std::swap(left, right);
    // Under a steep side there is no room for a wall.
    if (side.run > 6 * wall_thickness) add_wall_stub(drawing, left, right, lower_end);
}

/// Where the roof carries a load, the snow overhanging its eaves is one too.
/// @param height  of the diagram of the roof load
void add_eaves_load(Drawing& drawing, Point eaves, double height) {
    constexpr double length = 420;
    if (height > 0) drawing.arrows.push_back({Role::point_load, eaves, {eaves.x, eaves.y + length}});
}

/// A roof of two sides with its loads, in its own column of the sketch.
/// @param height1, height2  of the load diagrams
void add_gable(Drawing& drawing, Point ridge, const Side& side1, const Side& side2, double height1,
               double height2) {
    constexpr double base = 1080;
    const Point eaves1{ridge.x - side1.run, ridge.y + side1.fall};
    const Point eaves2{ridge.x + side2.run, ridge.y + side2.fall};
    add_uniform_load(drawing, eaves1.x, ridge.x, base, height1);
    add_uniform_load(drawing, ridge.x, eaves2.x, base, height2);
    if (height1 > 0) add_line(drawing, Role::axis, {eaves1.x, base}, eaves1);
    if (height2 > 0) add_line(drawing, Role::axis, {eaves2.x, base}, eaves2);
    if (height1 > 0 || height2 > 0) add_line(drawing, Role::axis, {ridge.x, base}, ridge);

    // Two very steep sides leave no room for the usual slab.
    const double thickness = std::min(80.0, 0.2 * (side1.run + side2.run));
    add_section(drawing, Role::roof, slab_section({eaves1, ridge, eaves2}, thickness));
    add_eaves_wall(drawing, eaves1, side1, 1, thickness, eaves1.y + wall_end);
    add_eaves_wall(drawing, eaves2, side2, -1, thickness, eaves2.y + wall_end);
    constexpr double mark = 520;
    add_pitch_mark(drawing, ridge, side1.pitch, -1, mark);
    add_pitch_mark(drawing, ridge, side2.pitch, 1, mark);
    add_eaves_load(drawing, eaves1, height1);
    add_eaves_load(drawing, eaves2, height2);
}

}  // namespace

Drawing one_pitch_sketch(const Entries& entries, const ProgramCells* loads) {
    Drawing drawing;
    drawing.neutral = !is_drawable_pitch(entries.alfa);
    constexpr double centre = 4720;
    constexpr double base = 1200;
    constexpr double max_rise = 1950;
    const Side side = make_side(drawing.neutral ? usual_pitch : entries.alfa, 4400, max_rise);
    const double qs = loads != nullptr ? loads->qs_1 : mu1(side.pitch, 0.0);
    const Point eaves{centre - side.run / 2, 2500 + 950 * side.fall / max_rise};
    const Point ridge{centre + side.run / 2, eaves.y - side.fall};

    const double height = ordinate(qs, qs, 700);
    add_uniform_load(drawing, eaves.x, ridge.x, base, height);
    if (height > 0) {
        add_line(drawing, Role::axis, {eaves.x, base}, eaves);
        add_line(drawing, Role::axis, {ridge.x, base}, ridge);
    }
    add_section(drawing, Role::roof, slab_section({eaves, ridge}, slab_thickness));
    const double lower_end = eaves.y + 520;
    add_eaves_wall(drawing, eaves, side, 1, slab_thickness, lower_end);
    add_eaves_wall(drawing, {ridge.x, ridge.y}, {-side.pitch, side.run, 0}, -1, slab_thickness, lower_end);
    add_pitch_mark(drawing, ridge, side.pitch, -1, 900);
    add_eaves_load(drawing, eaves, height);

    add_text(drawing, Role::dimension, pitch_text(drawing, "α", entries.alfa), {ridge.x - 80, ridge.y - 150},
             Align::right);
    add_slot(drawing, "carico_1", {centre, top_row}, Align::centre, "qs =", "kN/m²");
    add_slot(drawing, "spor_1", {eaves.x - 100, eaves.y + 260}, Align::right, "qe =", "kN/m");
    add_caption(drawing, "qs sulla proiezione orizzontale, qe in gronda", {page_middle, bottom_row});
    return drawing;
}

Drawing two_pitches_sketch(const Entries& entries, const ProgramCells* loads) {
    Drawing drawing;
    drawing.neutral = !is_drawable_pitch(entries.alfa1) || !is_drawable_pitch(entries.alfa2);
    drawing.page.width = wide_page;
    constexpr double column = wide_page / 3;
    constexpr double max_fall = 1300;
    constexpr double room = 600;
    constexpr double max_run = 1130;
    const Side side1 = make_side(drawing.neutral ? usual_pitch : entries.alfa1, max_run, max_fall);
    const Side side2 = make_side(drawing.neutral ? usual_pitch : entries.alfa2, max_run, max_fall);
    const double ridge_y = 1500 + 0.5 * (max_fall - std::max(side1.fall, side2.fall));

    const double full1 = loads != nullptr ? loads->qs_2a : mu1(side1.pitch, 0.0);
    const double full2 = loads != nullptr ? loads->qs_2c : mu1(side2.pitch, 0.0);
    const double half1 = loads != nullptr ? loads->qs_2b : full1 / 2;
    const double half2 = loads != nullptr ? loads->qs_2d : full2 / 2;
    const double largest = std::max({full1, full2, half1, half2});

    struct Arrangement {
        double qs1, qs2;
        const char *label1, *label2;
        const char *eaves1, *eaves2;
        const char *mu1, *mu2;
    };
    const std::array<Arrangement, 3> arrangements{{
        {full1, full2, "carico_2", "carico_3", "spor_2", "spor_4", "µ1(α1)", "µ1(α2)"},
        {half1, full2, "carico_4", "carico_5", "spor_3", "spor_4", "0.5µ1(α1)", "µ1(α2)"},
        {full1, half2, "carico_6", "carico_7", "spor_2", "spor_5", "µ1(α1)", "0.5µ1(α2)"},
    }};
    double left = 0;
    for (const Arrangement& it : arrangements) {
        const Point ridge{left + column / 2, ridge_y};
        add_gable(drawing, ridge, side1, side2, ordinate(it.qs1, largest, room),
                  ordinate(it.qs2, largest, room));
        // Clear of a side that is almost upright.
        const double from_ridge = slot_width("qs =", "") / 2 + 90;
        constexpr double under_eaves = 590;
        add_slot(drawing, it.label1, {ridge.x - from_ridge, top_row}, Align::centre, "qs =", "");
        add_slot(drawing, it.label2, {ridge.x + from_ridge, top_row}, Align::centre, "qs =", "");
        add_slot(drawing, it.eaves1, {ridge.x - from_ridge, ridge_y + side1.fall + under_eaves},
                 Align::centre, "qe =", "");
        add_slot(drawing, it.eaves2, {ridge.x + from_ridge, ridge_y + side2.fall + under_eaves},
                 Align::centre, "qe =", "");
        add_text(drawing, Role::caption, it.mu1, {ridge.x - from_ridge, 3830}, Align::centre);
        add_text(drawing, Role::caption, it.mu2, {ridge.x + from_ridge, 3830}, Align::centre);
        left += column;
    }
    const Point first_ridge{column / 2, ridge_y - 150};
    constexpr double half_column = column / 2 - 100;
    add_text(drawing, Role::dimension, pitch_text(drawing, "α1", entries.alfa1),
             {first_ridge.x - 60, first_ridge.y}, Align::right, half_column);
    add_text(drawing, Role::dimension, pitch_text(drawing, "α2", entries.alfa2),
             {first_ridge.x + 60, first_ridge.y}, Align::left, half_column);
    add_caption(drawing, "qs in kN/m² sulla proiezione orizzontale, qe in kN/m in gronda",
                {wide_page / 2, bottom_row});
    return drawing;
}

Drawing several_pitches_sketch(const Entries& entries, const ProgramCells* loads) {
    Drawing drawing;
    drawing.neutral = !is_drawable_pitch(entries.alfa1) || !is_drawable_pitch(entries.alfa2);
    constexpr double max_fall = 1700;
    constexpr double base = 1450;
    constexpr double room = 850;
    const Side side1 = make_side(drawing.neutral ? usual_pitch : entries.alfa1, 2100, max_fall);
    const Side side2 = make_side(drawing.neutral ? usual_pitch : entries.alfa2, 2100, max_fall);
    const double mean = (side1.pitch + side2.pitch) / 2;
    const double qs1 = loads != nullptr ? loads->qs_3a : mu1(side1.pitch, 0.0);
    const double qs2 = loads != nullptr ? loads->qs_3b : mu1(side2.pitch, 0.0);
    const double qs_valley = loads != nullptr ? loads->qs_3c : mu2(mean, 0.0);
    const double largest = std::max({qs1, qs2, qs_valley});

    // Side 1 falls to the valley from the left, side 2 from the right; beyond their ridges half as much
    // roof again, of the same pitch, goes on.
    const Point valley{page_middle, 2600 + 950 * std::max(side1.fall, side2.fall) / max_fall};
    const Point ridge1{valley.x - side1.run, valley.y - side1.fall};
    const Point ridge2{valley.x + side2.run, valley.y - side2.fall};
    const Point end1{ridge1.x - side1.run / 2, ridge1.y + side1.fall / 2};
    const Point end2{ridge2.x + side2.run / 2, ridge2.y + side2.fall / 2};

    const auto top = [&](double load) { return base - ordinate(load, largest, room); };
    add_load(drawing,
             {{end1.x, top(qs1)},
              {ridge1.x, top(qs1)},
              {valley.x, top(qs_valley)},
              {ridge2.x, top(qs2)},
              {end2.x, top(qs2)}},
             base);
    for (const Point p : {ridge1, valley, ridge2})
        add_line(drawing, Role::axis, {p.x, base}, p);
    const double thickness = std::min(slab_thickness, 0.2 * (side1.run + side2.run));
    const std::vector<Point> slab = slab_section({end1, ridge1, valley, ridge2, end2}, thickness);
    add_section(drawing, Role::roof, slab);
    add_slab_break(drawing, end1, ridge1, thickness);
    add_slab_break(drawing, end2, ridge2, thickness);
    const double gutter = slab[7].y;  // underneath the valley
    add_wall_stub(drawing, {valley.x - wall_thickness / 2, gutter}, {valley.x + wall_thickness / 2, gutter},
                  gutter + 220);
    constexpr double mark = 800;
    add_pitch_mark(drawing, ridge1, side1.pitch, -1, mark);
    add_pitch_mark(drawing, ridge2, side2.pitch, 1, mark);

    add_text(drawing, Role::dimension, pitch_text(drawing, "α1", entries.alfa1),
             {ridge1.x - 60, ridge1.y - 150}, Align::right);
    add_text(drawing, Role::dimension, pitch_text(drawing, "α2", entries.alfa2),
             {ridge2.x + 60, ridge2.y - 150}, Align::left);
    const double beside_valley = slot_width("qs =", "kN/m²") + 20;
    add_slot(drawing, "carico_8", {std::min((end1.x + ridge1.x) / 2, valley.x - beside_valley), top_row},
             Align::centre, "qs =", "kN/m²");
    add_slot(drawing, "carico_9", {valley.x, top_row}, Align::centre, "qs =", "kN/m²");
    add_slot(drawing, "carico_10", {std::max((end2.x + ridge2.x) / 2, valley.x + beside_valley), top_row},
             Align::centre, "qs =", "kN/m²");
    if (drawing.neutral) add_caption(drawing, "", {page_middle, bottom_row});
    return drawing;
}

}  // namespace coltre
