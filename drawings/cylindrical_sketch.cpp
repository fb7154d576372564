#include <algorithm>
#include <cmath>
#include <numbers>

#include "drawings/case_sketches.h"
#include "drawings/drawing_parts.h"

namespace coltre {

namespace {

constexpr double span = 2500;  // of the arc
constexpr double max_rise = span / 2;

/// The arc of one arrangement: the same roof stands in the sketch twice.
struct Vault {
    double left;
    double springing;
    double rise;
    double half_angle;  ///< slope at the springing, radians

    [[nodiscard]] double right() const { return left + span; }
    [[nodiscard]] double centre() const { return left + span / 2; }
};

std::vector<Point> arc(const Vault& vault) {
    constexpr int pieces = 48;
    const double radius = span / 2 / std::sin(vault.half_angle);
    std::vector<Point> points;
    for (int i = 0; i <= pieces; ++i) {
        const double angle = vault.half_angle * (2.0 * i / pieces - 1);
        // The square of the half sine stays exact for shallow arcs, where 1 - cos would not.
        const double below_crown = 2 * radius * std::pow(std::sin(angle / 2), 2);
        points.push_back(
            {vault.centre() + radius * std::sin(angle), vault.springing - vault.rise + below_crown});
    }
    return points;
}

void add_vault(Drawing& drawing, const Vault& vault) {
    constexpr double eaves = 100;
    add_section(drawing, Role::roof, slab_section(arc(vault), slab_thickness));
    const double top = vault.springing + slab_thickness * std::cos(vault.half_angle);
    const double lower_end = vault.springing + 380;
    add_wall_stub(drawing, {vault.left, top}, {vault.left + slab_thickness, top}, lower_end);
    add_wall_stub(drawing, {vault.right() - slab_thickness, top}, {vault.right(), top}, lower_end);
    add_line(drawing, Role::roof, {vault.left - eaves, vault.springing}, {vault.left, vault.springing});
    add_line(drawing, Role::roof, {vault.right(), vault.springing}, {vault.right() + eaves, vault.springing});
}

/// The overhang load at the eaves, its arrow on the left or on the right.
void add_eaves_load(Drawing& drawing, const Vault& vault, bool left, double roof_load) {
    constexpr double outside = 80;
    const double x = left ? vault.left - outside : vault.right() + outside;
    if (ordinate(roof_load, roof_load, 1) > 0) {
        drawing.arrows.push_back({Role::point_load, {x, vault.springing}, {x, vault.springing + 350}});
    }
}

}  // namespace

Drawing cylindrical_sketch(const Entries& entries, const ProgramCells* loads) {
    Drawing drawing;
    drawing.page.width = wide_page;
    drawing.neutral =
        !is_drawable_length(entries.L) || !is_drawable_length(entries.H) || entries.L / 2 < entries.H;
    const double L = drawing.neutral ? 10 : entries.L;
    const double H = drawing.neutral ? 2 : entries.H;
    const double rise = span * H / L;
    const double half_angle = 2 * std::atan(2 * H / L);
    const double springing = 2400 + 650 * rise / max_rise;
    const Vault uniform{600, springing, rise, half_angle};
    const Vault asymmetric{5600, springing, rise, half_angle};

    const ProgramCells results =
        loads != nullptr ? *loads : results_of_unit_ground_load({.kind = Kind::cylindrical, .L = L, .H = H});
    const double qs_uniform = results.qs_4a;
    const double qs_left = results.qs_4b;
    const double qs_right = results.qs_4c;
    const double largest = std::max({qs_uniform, qs_left, qs_right});
    constexpr double base = 1180;  // of the load diagrams
    constexpr double room = 620;   // of their ordinates
    const auto top = [&](double load) { return base - ordinate(load, largest, room); };

    const bool beyond_roof = results.L1 > L;
    const double zone = span * std::min(results.L1 / L, 1.0);
    const double quarter = zone / 4;
    constexpr double zone_line = base + 170;
    constexpr double zone_row = zone_line + 230;

    add_vault(drawing, uniform);
    const double zone1 = uniform.centre() - zone / 2;
    add_load(drawing, {{zone1, top(qs_uniform)}, {zone1 + zone, top(qs_uniform)}}, base);
    add_horizontal_dimension(drawing, zone1, zone1 + zone, zone_line, beyond_roof);
    add_eaves_load(drawing, uniform, true, qs_uniform);
    add_eaves_load(drawing, uniform, false, qs_uniform);

    add_vault(drawing, asymmetric);
    const double zone2 = asymmetric.centre() - zone / 2;
    add_load(drawing, {{zone2, base}, {zone2 + quarter, top(qs_left)}, {zone2 + 2 * quarter, base}}, base);
    add_load(drawing,
             {{zone2 + 2 * quarter, base}, {zone2 + 3 * quarter, top(qs_right)}, {zone2 + zone, base}}, base);
    add_horizontal_dimension(drawing, zone2, zone2 + quarter, zone_line, beyond_roof);
    add_eaves_load(drawing, asymmetric, true, qs_left);
    add_eaves_load(drawing, asymmetric, false, qs_right);

    const double bottom_row = springing + 1020;
    if (!drawing.neutral) {
        const double span_line = bottom_row - 170;
        add_horizontal_dimension(drawing, uniform.left, uniform.right(), span_line);
        add_text(drawing, Role::dimension, quantity(drawing, "L", entries.L, " m"),
                 {uniform.centre(), bottom_row}, Align::centre);
        const double rise_line = uniform.right() + 190;
        add_vertical_dimension(drawing, rise_line, springing - rise, springing);
        add_text(drawing, Role::dimension, quantity(drawing, "H", entries.H, " m"),
                 {rise_line + 90, springing - rise / 2}, Align::left, 1080);
    }

    constexpr double top_row = 240;
    const double eaves_row = springing + 600;
    add_slot(drawing, "carico_11", {uniform.centre(), top_row}, Align::centre, "qs =", "kN/m²");
    // The triangles stand close together: the labels make room for each other.
    const double between = slot_width("qs =", "kN/m²") / 2 + 20;
    add_slot(drawing, "carico_12", {asymmetric.centre() - between, top_row}, Align::centre, "qs =", "kN/m²");
    add_slot(drawing, "carico_13", {asymmetric.centre() + between, top_row}, Align::centre, "qs =", "kN/m²");
    add_slot(drawing, "L1output", {uniform.centre(), zone_row}, Align::centre, "L1 =", "m");
    // The quarter is too short for it.
    add_slot(drawing, "L2output", {zone2 - 140, zone_line}, Align::right,
             "L2 =", "");  // its label has the unit
    add_slot(drawing, "spor_8", {80, eaves_row}, Align::left, "qe =", "kN/m");
    add_slot(drawing, "spor_8", {uniform.right() + 190, eaves_row}, Align::centre, "qe =", "kN/m");
    add_slot(drawing, "spor_9", {asymmetric.left - 80, eaves_row}, Align::centre, "qe =", "kN/m");
    add_slot(drawing, "spor_10", {asymmetric.right() + 80, eaves_row}, Align::centre, "qe =", "kN/m");
    add_caption(drawing, "0.5µ3 a sinistra, µ3 a destra", {asymmetric.centre(), bottom_row}, 3400);
    return drawing;
}

}  // namespace coltre
