#include "drawings/drawing_parts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "text/number_text.h"

namespace coltre {

namespace {

constexpr double tick = 55;            // half the width of a tick
constexpr double overrun = 80;         // of a dimension line beyond its ticks
constexpr double arrow_spacing = 260;  // about, between the arrows of a load
constexpr double least_arrow = 110;    // a shorter one would be all head
constexpr double hatch_spacing = 75;

Rect box_at(Point at, Align align, double width, double height) {
    double left = at.x;
    if (align == Align::centre) left -= width / 2;
    if (align == Align::right) left -= width;
    return {left, at.y - height / 2, width, height};
}

/// Height of a polyline at x, from left to right; its ends go on level.
double height_at(const std::vector<Point>& line, double x) {
    for (std::size_t i = 1; i < line.size(); ++i) {
        const Point a = line[i - 1];
        const Point b = line[i];
        if (x > b.x || b.x <= a.x) continue;
        return a.y + (b.y - a.y) * std::clamp((x - a.x) / (b.x - a.x), 0.0, 1.0);
    }
    return line.back().y;
}

std::string named_number(const Drawing& drawing, const std::string& name, double number,
                         const std::string& unit) {
    if (drawing.neutral) return name;
    std::string text = display_number_text(number);
    if (text.starts_with(' ')) text.erase(0, 1);
    return name + " = " + text + unit;
}

}  // namespace

double radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

bool is_drawable_pitch(double degrees) {
    return degrees >= 0 && degrees < 90;
}

bool is_drawable_length(double metres) {
    return metres >= 0.01 && metres <= 100000;
}

Fitted fit(double twips, double least, double most) {
    const double fitted = std::clamp(twips, least, most);
    return {fitted, fitted != twips};
}

double run_of_slope(double pitch, double max_run, double max_rise) {
    const double slope = std::tan(radians(pitch));
    return slope * max_run > max_rise ? max_rise / slope : max_run;
}

double ordinate(double load, double largest, double room) {
    if (!(load > 0) || !std::isfinite(load)) return 0;
    return load < largest ? room * (load / largest) : room;
}

std::string quantity(const Drawing& drawing, const std::string& name, double value, const std::string& unit) {
    return named_number(drawing, name, round_significant(value, 5), unit);
}

std::string pitch_text(const Drawing& drawing, const std::string& name, double degrees) {
    return named_number(drawing, name, round_half_even(degrees, 2), "°");
}

std::vector<std::pair<Point, Point>> hatch_lines(const std::vector<Point>& polygon, double spacing) {
    std::vector<std::pair<Point, Point>> pieces;
    if (polygon.empty()) return pieces;
    // Lines x + y = c: where one crosses the outline, by turns, it enters and leaves.
    const auto offset = [](Point p) { return p.x + p.y; };
    const auto [lowest, highest] = std::ranges::minmax_element(polygon, {}, offset);
    const double last = offset(*highest);
    std::vector<Point> crossings;
    for (double c = offset(*lowest) + spacing / 2; c < last; c += spacing) {
        crossings.clear();
        for (std::size_t i = 0; i < polygon.size(); ++i) {
            const Point a = polygon[i];
            const Point b = polygon[(i + 1) % polygon.size()];
            const double to_a = offset(a) - c;
            const double to_b = offset(b) - c;
            if ((to_a < 0) == (to_b < 0)) continue;
            const double part = to_a / (to_a - to_b);
            crossings.push_back({a.x + (b.x - a.x) * part, a.y + (b.y - a.y) * part});
        }
        std::ranges::sort(crossings, {}, &Point::x);
        for (std::size_t i = 1; i < crossings.size(); i += 2) {
            pieces.emplace_back(crossings[i - 1], crossings[i]);
        }
    }
    return pieces;
}

std::vector<Point> slab_section(const std::vector<Point>& upper_side, double thickness) {
    constexpr double sharpest = 0.15;  // of 1 + cos of the angle between the slopes: corners up to 3.6 thick
    const std::size_t count = upper_side.size();
    std::vector<Point> downwards(count - 1);  // unit vectors square to each piece
    for (std::size_t i = 0; i + 1 < count; ++i) {
        const double dx = upper_side[i + 1].x - upper_side[i].x;
        const double dy = upper_side[i + 1].y - upper_side[i].y;
        const double length = std::hypot(dx, dy);
        downwards[i] = length > 0 ? Point{-dy / length, dx / length} : Point{0, 1};
    }
    std::vector<Point> outline = upper_side;
    for (std::size_t i = count; i-- > 0;) {
        const Point u = downwards[i == 0 ? 0 : i - 1];
        const Point v = downwards[std::min(i, count - 2)];
        const double corner = thickness / std::max(1 + u.x * v.x + u.y * v.y, sharpest);
        outline.push_back({upper_side[i].x + (u.x + v.x) * corner, upper_side[i].y + (u.y + v.y) * corner});
    }
    return outline;
}

void add_line(Drawing& drawing, Role role, Point from, Point to) {
    drawing.shapes.push_back({role, {from, to}, false});
}

void add_section(Drawing& drawing, Role role, std::vector<Point> outline) {
    for (const auto& [from, to] : hatch_lines(outline, hatch_spacing))
        add_line(drawing, Role::hatch, from, to);
    drawing.shapes.push_back({role, std::move(outline), true});
}

void add_wall_stub(Drawing& drawing, Point top_left, Point top_right, double lower_end) {
    const std::vector<Point> section{top_left, top_right, {top_right.x, lower_end}, {top_left.x, lower_end}};
    for (const auto& [from, to] : hatch_lines(section, hatch_spacing))
        add_line(drawing, Role::hatch, from, to);
    add_line(drawing, Role::wall, top_left, section[3]);
    add_line(drawing, Role::wall, top_right, section[2]);
    add_break(drawing, {(top_left.x + top_right.x) / 2, lower_end}, lying);
}

void add_break(Drawing& drawing, Point centre, Point across) {
    constexpr std::array<Point, 6> zigzag{{{-150, 0}, {-40, 0}, {-15, -65}, {15, 65}, {40, 0}, {150, 0}}};
    Shape mark{Role::break_mark, {}, false};
    for (const Point p : zigzag) {
        mark.points.push_back(
            {centre.x + p.x * across.x - p.y * across.y, centre.y + p.x * across.y + p.y * across.x});
    }
    drawing.shapes.push_back(std::move(mark));
}

void add_slab_break(Drawing& drawing, Point end, Point inner, double thickness) {
    const double length = std::hypot(inner.x - end.x, inner.y - end.y);
    Point down{(end.y - inner.y) / length, (inner.x - end.x) / length};
    if (down.y < 0) down = {-down.x, -down.y};
    add_break(drawing, {end.x + down.x * thickness / 2, end.y + down.y * thickness / 2}, down);
}

void add_load(Drawing& drawing, const std::vector<Point>& ordinates, double base, Role line_role) {
    if (std::ranges::all_of(ordinates, [&](Point p) { return p.y >= base; })) return;
    const double left = ordinates.front().x;
    const double right = ordinates.back().x;
    std::vector<Point> area = ordinates;
    area.push_back({right, base});
    area.push_back({left, base});
    drawing.shapes.push_back({Role::load_area, std::move(area), true});
    add_line(drawing, Role::load_line, {left, base}, {right, base});
    add_line(drawing, Role::load_line, {left, base}, ordinates.front());
    add_line(drawing, Role::load_line, {right, base}, ordinates.back());
    drawing.shapes.push_back({line_role, ordinates, false});

    const double gaps = std::max(1.0, std::round((right - left) / arrow_spacing));
    const double gap = (right - left) / gaps;
    for (double i = 0.5; i < gaps; ++i) {
        const double x = left + i * gap;
        const double top = height_at(ordinates, x);
        if (base - top >= least_arrow) drawing.arrows.push_back({Role::load_arrow, {x, top}, {x, base}});
    }
}

void add_horizontal_dimension(Drawing& drawing, double x0, double x1, double y, bool broken, Role role) {
    add_line(drawing, role, {x0 - overrun, y}, {x1 + overrun, y});
    for (const double x : {x0, x1})
        add_line(drawing, role, {x - tick, y + tick}, {x + tick, y - tick});
    if (broken) add_break(drawing, {(x0 + x1) / 2, y}, lying);
}

void add_vertical_dimension(Drawing& drawing, double x, double y0, double y1, bool broken) {
    add_line(drawing, Role::dimension, {x, y0 - overrun}, {x, y1 + overrun});
    for (const double y : {y0, y1}) {
        add_line(drawing, Role::dimension, {x - tick, y + tick}, {x + tick, y - tick});
    }
    if (broken) add_break(drawing, {x, (y0 + y1) / 2}, upright);
}

void add_pitch_mark(Drawing& drawing, Point apex, double pitch, int direction, double length) {
    constexpr double radius = 0.8;  // of the length
    constexpr int steps = 16;
    add_line(drawing, Role::axis, apex, {apex.x + direction * length, apex.y});
    Shape arc{Role::dimension, {}, false};
    for (int i = 0; i <= steps; ++i) {
        const double angle = radians(pitch) * i / steps;
        arc.points.push_back({apex.x + direction * radius * length * std::cos(angle),
                              apex.y + radius * length * std::sin(angle)});
    }
    drawing.shapes.push_back(std::move(arc));
}

void add_text(Drawing& drawing, Role role, const std::string& text, Point at, Align align, double room) {
    const Rect box = box_at(at, align, std::min(text_width(text), room), text_height * 1.2);
    drawing.texts.push_back({role, text, box, align});
}

void add_caption(Drawing& drawing, const std::string& text, Point centre, double room) {
    const std::string note = "schizzo indicativo: dati non rappresentabili";
    add_text(drawing, Role::caption, drawing.neutral ? note : text, centre, Align::centre, room);
}

double slot_width(const std::string& before, const std::string& after) {
    constexpr double gap = 60;
    double width = number_width;
    for (const std::string& beside : {before, after}) {
        if (!beside.empty()) width += text_width(beside) + gap;
    }
    return width;
}

void add_slot(Drawing& drawing, const std::string& name, Point at, Align align, const std::string& before,
              const std::string& after) {
    constexpr double margin = 20;
    Rect area = box_at(at, align, slot_width(before, after), slot_height);
    const Rect& page = drawing.page;
    area.x = std::clamp(area.x, page.x + margin, page.right() - margin - area.width);
    const bool repeats = drawing.find_slot(name) != nullptr;
    drawing.label_slots.push_back({name, area, align, before, after, true, repeats});
}

}  // namespace coltre
