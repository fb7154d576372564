#include "drawings/look.h"

#include <algorithm>
#include <cmath>

namespace coltre {

namespace {

constexpr double stale = 0.55;  // of the ink: numbers that belong to other entries

Colour blend(const Colour& over, const Colour& under, double part) {
    const auto mix = [part](double a, double b) { return a * part + b * (1 - part); };
    return {mix(over.red, under.red), mix(over.green, under.green), mix(over.blue, under.blue)};
}

constexpr Colour of_bytes(int red, int green, int blue) {
    return {red / 255.0, green / 255.0, blue / 255.0};
}

}  // namespace

Colour colour(Role role, const Inks& inks) {
    const auto& [ink, paper] = inks;
    const auto [least, most] = std::minmax({paper.red, paper.green, paper.blue});
    const bool dark = least + most < 1;
    const Colour snow = dark ? of_bytes(120, 180, 245) : of_bytes(20, 95, 175);
    const Colour force = dark ? of_bytes(255, 140, 105) : of_bytes(185, 50, 15);
    switch (role) {
        case Role::roof:
        case Role::wall:
        case Role::break_mark:
            return ink;
        case Role::hatch:
        case Role::axis:
        case Role::other_curve:
            return blend(ink, paper, 0.5);
        case Role::load_area:
        case Role::snow:
            return blend(snow, paper, 0.2);
        case Role::load_line:
        case Role::load_arrow:
        case Role::drift_line:
        case Role::curve:
            return snow;
        case Role::point_load:
        case Role::mark:
            return force;
        case Role::dimension:
        case Role::drift_length:
            return blend(ink, paper, 0.85);
        case Role::caption:
            return blend(ink, paper, 0.7);
    }
    return ink;
}

Colour number_colour(const Drawing& drawing, const Inks& inks) {
    return drawing.pending ? blend(inks.ink, inks.paper, stale) : inks.ink;
}

Colour symbol_colour(const Drawing& drawing, const Inks& inks) {
    return drawing.pending ? number_colour(drawing, inks) : colour(Role::dimension, inks);
}

bool is_filled(Role role) {
    return role == Role::load_area || role == Role::snow || role == Role::mark;
}

double line_width(Role role) {
    switch (role) {
        case Role::roof:
        case Role::wall:
        case Role::point_load:
        case Role::curve:
            return 24;
        case Role::drift_line:
            return 22.5;
        case Role::load_line:
            return 18;
        case Role::hatch:
        case Role::axis:
        case Role::other_curve:
            return 10.5;
        default:
            return 13.5;
    }
}

std::array<Point, 3> arrow_head(const Arrow& arrow, double part) {
    const double head = part * (arrow.role == Role::point_load ? 130 : 85);
    const Point run{arrow.to.x - arrow.from.x, arrow.to.y - arrow.from.y};
    const double length = std::max(std::hypot(run.x, run.y), 1.0);
    const Point along{run.x / length * head, run.y / length * head};
    const Point neck{arrow.to.x - along.x, arrow.to.y - along.y};
    return {arrow.to, Point{neck.x - along.y / 3, neck.y + along.x / 3},
            Point{neck.x + along.y / 3, neck.y - along.x / 3}};
}

}  // namespace coltre
