#include "drawings/diagrams.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "drawings/drawing_parts.h"
#include "engine/Calcolo_Mu.h"
#include "engine/ground_load.h"
#include "site/regions.h"
#include "text/number_text.h"

namespace coltre {

namespace {

/// Where a diagram stands on its page, and what its axes measure.
struct Axes {
    Rect plot;
    double x_end, x_step;  // from 0
    double y_end, y_step;

    [[nodiscard]] double x(double value) const { return plot.x + plot.width * value / x_end; }
    /// Nothing lies below the axis.
    [[nodiscard]] double y(double value) const {
        return plot.bottom() - plot.height * std::max(value, 0.0) / y_end;
    }
    [[nodiscard]] Point at(double x_value, double y_value) const { return {x(x_value), y(y_value)}; }
};

/// A number as Italians write it: "1,5398".
std::string italian(double value) {
    std::string text = display_number_text(value);
    if (text.starts_with(' ')) text.erase(0, 1);
    std::ranges::replace(text, '.', ',');
    return text;
}

/// A step of 1, 2 or 5 tens, hundreds, ... that divides the length into three to seven.
double usual_step(double length) {
    const double unit = std::pow(10, std::floor(std::log10(length)) - 1);
    for (const double step : {2 * unit, 5 * unit, 10 * unit})
        if (length / step < 7) return step;
    return 20 * unit;
}

void add_axes(Drawing& drawing, const Axes& axes, const std::string& x_name, const std::string& y_name) {
    constexpr double tick = 60;
    const Rect& plot = axes.plot;
    add_line(drawing, Role::dimension, {plot.x, plot.bottom()}, {plot.right(), plot.bottom()});
    add_line(drawing, Role::dimension, {plot.x, plot.bottom()}, {plot.x, plot.y});
    // Counted, since steps that are added up miss the end.
    for (int i = 0; i * axes.x_step < axes.x_end + axes.x_step / 2; ++i) {
        const double x = axes.x(i * axes.x_step);
        add_line(drawing, Role::dimension, {x, plot.bottom()}, {x, plot.bottom() + tick});
        add_text(drawing, Role::dimension, italian(i * axes.x_step), {x, plot.bottom() + 190}, Align::centre);
    }
    for (int i = 0; i * axes.y_step < axes.y_end + axes.y_step / 2; ++i) {
        const double y = axes.y(i * axes.y_step);
        add_line(drawing, Role::dimension, {plot.x - tick, y}, {plot.x, y});
        add_text(drawing, Role::dimension, italian(round_significant(i * axes.y_step, 5)), {plot.x - 110, y},
                 Align::right, plot.x - 130);
    }
    add_text(drawing, Role::caption, x_name, {plot.x + plot.width / 2, plot.bottom() + 480}, Align::centre);
    add_text(drawing, Role::caption, y_name, {40, plot.y - 390}, Align::left);
}

void add_curve(Drawing& drawing, Role role, std::vector<Point> points) {
    if (points.size() > 1) drawing.shapes.push_back({role, std::move(points), false});
}

/// A point of a curve, with lines down to the axis and across to the other.
void add_mark(Drawing& drawing, const Axes& axes, Point p) {
    constexpr double half = 65;
    add_line(drawing, Role::axis, p, {p.x, axes.plot.bottom()});
    add_line(drawing, Role::axis, p, {axes.plot.x, p.y});
    drawing.shapes.push_back(
        {Role::mark, {{p.x - half, p.y}, {p.x, p.y - half}, {p.x + half, p.y}, {p.x, p.y + half}}, true});
}

constexpr double highest = 1600;        // m, of the diagram
constexpr double constant_up_to = 200;  // m: the load has a step there

/// A curve computed: one piece up to the step, and one beyond.
struct Sampled {
    std::vector<std::pair<double, double>> low, high;  // altitude and load
    double end = 0;                                    // load at the end
    double largest = 0;
};

Sampled sample(const AltitudeCurve& curve) {
    constexpr double step = 20;  // m
    Sampled sampled;
    const auto add = [&](std::vector<std::pair<double, double>>& piece, double altitude) {
        const std::optional<double> load = curve.load(altitude);
        if (!load) return;
        piece.emplace_back(altitude, *load);
        sampled.end = *load;
        sampled.largest = std::max(sampled.largest, *load);
    };
    for (double altitude = 0; altitude <= constant_up_to; altitude += step)
        add(sampled.low, altitude);
    add(sampled.high, std::nextafter(constant_up_to, highest));
    for (double altitude = constant_up_to + step; altitude <= highest; altitude += step)
        add(sampled.high, altitude);
    return sampled;
}

void add_altitude_curve(Drawing& drawing, const Axes& axes, Role role, const Sampled& sampled) {
    for (const auto& piece : {sampled.low, sampled.high}) {
        std::vector<Point> points;
        for (const auto& [altitude, load] : piece)
            points.push_back(axes.at(altitude, load));
        add_curve(drawing, role, std::move(points));
    }
}

/// The names at the ends of the curves, moved apart where these come close.
void add_names(Drawing& drawing, const Axes& axes, std::vector<std::pair<double, std::string>> ends) {
    constexpr double row = 250;
    std::ranges::sort(ends, std::greater());
    std::vector<double> rows;
    for (double next = axes.plot.y; const auto& [load, name] : ends) {
        rows.push_back(std::max(axes.y(load), next));
        next = rows.back() + row;
    }
    const double room = drawing.page.right() - axes.plot.right() - 100;
    double next = axes.plot.bottom();
    for (std::size_t i = ends.size(); i-- > 0; next -= row) {
        next = std::min(next, rows[i]);
        add_text(drawing, Role::caption, ends[i].second, {axes.plot.right() + 80, next}, Align::left, room);
    }
}

}  // namespace

Drawing load_over_altitude(const AltitudeDiagram& diagram) {
    Drawing drawing;
    const Sampled site = sample(diagram.site);
    std::vector<Sampled> others;
    double largest = site.largest;
    for (const AltitudeCurve& curve : diagram.others) {
        others.push_back(sample(curve));
        largest = std::max(largest, others.back().largest);
    }
    const bool on_diagram = diagram.altitude >= 0 && diagram.altitude <= highest;
    std::optional<double> load;
    if (std::isfinite(diagram.altitude)) load = diagram.site.load(diagram.altitude);
    const bool marked = on_diagram && load;
    if (marked) largest = std::max(largest, *load);
    constexpr double least_shown = 1e-6, most_shown = 1e9;
    drawing.neutral = !(largest >= least_shown && largest <= most_shown);
    if (drawing.neutral) largest = 1;

    const double step = usual_step(largest);
    const Axes axes{{1000, 800, 4650, 2760}, highest, 200, step * std::ceil(largest / step), step};
    add_axes(drawing, axes, "altitudine as [m]", diagram.symbol + " [kN/m²]");
    for (const double limit : {constant_up_to, highest_regulated_altitude}) {
        add_line(drawing, Role::axis, {axes.x(limit), axes.plot.y}, {axes.x(limit), axes.plot.bottom()});
        add_text(drawing, Role::caption, italian(limit) + " m", {axes.x(limit), axes.plot.y - 140},
                 Align::centre);
    }
    const Point heading{drawing.page.width / 2, 160};
    if (drawing.neutral) {
        add_text(drawing, Role::caption, "nessun carico da rappresentare", heading, Align::centre);
        return drawing;
    }
    std::vector<std::pair<double, std::string>> ends;
    for (std::size_t i = 0; i < others.size(); ++i) {
        add_altitude_curve(drawing, axes, Role::other_curve, others[i]);
        ends.emplace_back(others[i].end, diagram.others[i].name);
    }
    add_altitude_curve(drawing, axes, Role::curve, site);
    ends.emplace_back(site.end, diagram.site.name);
    add_names(drawing, axes, std::move(ends));
    if (marked) add_mark(drawing, axes, axes.at(diagram.altitude, *load));
    std::string caption = diagram.site.name;
    if (load) {
        caption += ", as = " + italian(diagram.altitude) + " m: " + diagram.symbol + " = " +
                   italian(round_half_even(*load, 4)) + " kN/m²";
    }
    add_text(drawing, Role::dimension, caption, heading, Align::centre);
    return drawing;
}

Drawing ground_load_over_altitude(SnowZone zone, double factor, double CE, double Ct, double altitude) {
    const auto curve_of = [&](SnowZone code) {
        ProgramCells of_zone;
        of_zone.zone = code;
        of_zone.return_period_factor = factor;
        return AltitudeCurve{std::string(zone_name(code)),
                             [of_zone, CE, Ct](double as) -> std::optional<double> {
                                 ProgramCells result = of_zone;
                                 if (set_base_load(result, as) != Fault::none ||
                                     apply_load_factors(result, CE, Ct) != Fault::none)
                                     return {};
                                 return result.qsk;
                             }};
    };
    AltitudeDiagram diagram{"qsk", altitude, curve_of(zone), {}};
    for (SnowZone other = 0; other < 4; ++other)
        if (other != zone) diagram.others.push_back(curve_of(other));
    return load_over_altitude(diagram);
}

Drawing shape_coefficients_over_slope(const Entries& entries) {
    Drawing drawing;
    const Axes axes{{900, 640, 5600, 2920}, 90, 10, 1.6, 0.2};
    add_axes(drawing, axes, "inclinazione della falda α [°]", "µ1, µ2");
    const auto on_mu1 = [&](double pitch) { return axes.at(pitch, mu1(pitch, 0.0)); };
    const auto on_mu2 = [&](double pitch) { return axes.at(pitch, mu2(pitch, 0.0)); };
    add_curve(drawing, Role::curve, {on_mu1(0), on_mu1(30), on_mu1(60), on_mu1(90)});
    add_curve(drawing, Role::curve, {on_mu2(0), on_mu2(30), on_mu2(60)});
    add_line(drawing, Role::axis, on_mu2(60), axes.at(60, 0));

    const bool several = entries.kind == Kind::several_pitches;
    std::vector<std::pair<std::string, double>> pitches;
    if (entries.kind == Kind::one_pitch) pitches = {{"α", entries.alfa}};
    if (entries.kind == Kind::two_pitches || several)
        pitches = {{"α1", entries.alfa1}, {"α2", entries.alfa2}};
    const double mean = (entries.alfa1 + entries.alfa2) / 2;
    // Beyond 60 degrees the diagram is empty: there is what is marked, in words.
    Point row{axes.x(60) + 80, axes.y(1.6)};
    const auto mark = [&](const std::string& name, double pitch, const char* symbol, double mu) {
        if (!(pitch >= 0 && pitch <= 90)) return;
        add_mark(drawing, axes, axes.at(pitch, mu));
        add_text(drawing, Role::dimension,
                 name + " = " + italian(round_half_even(pitch, 2)) + "°: " + symbol + " = " +
                     italian(round_half_even(mu, 4)),
                 row, Align::left, drawing.page.right() - row.x - 40);
        row.y += 300;
    };
    for (const auto& [name, pitch] : pitches)
        mark(name, pitch, "µ1", mu1(pitch, 0.0));
    if (several) mark("media", mean, "µ2", mu2(mean, 0.0));
    // Beside its curve, clear of a mark on the other.
    const bool crossed = several && mean > 22 && mean < 30;
    add_text(drawing, Role::caption, "µ1", {axes.x(crossed ? 36 : 26), axes.y(0.8) - 160}, Align::centre);
    add_text(drawing, Role::caption, "µ2", {axes.x(45), axes.y(1.6) - 160}, Align::centre);
    return drawing;
}

}  // namespace coltre
