#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <random>

#include "calculate/calculations.h"
#include "drawings/diagrams.h"
#include "drawings/exposure_table.h"
#include "drawings/sketches.h"

namespace coltre {
namespace {

/// Whatever the entries and the results: finite coordinates, all on the page, no label or text over another,
/// no label over a slab, a wall or an ordinate. The end of a load may touch its label's room.
void check(const Drawing& drawing) {
    std::vector<std::pair<std::string, Rect>> boxes;
    for (const Text& text : drawing.texts)
        boxes.emplace_back(text.text, text.box);
    for (const LabelSlot& slot : drawing.label_slots)
        if (slot.visible) boxes.emplace_back(slot.name, slot.area);
    for (auto it = boxes.begin(); it != boxes.end(); ++it) {
        ASSERT_TRUE(drawing.page.contains(it->second)) << it->first;
        for (auto other = it + 1; other != boxes.end(); ++other)
            ASSERT_FALSE(it->second.overlaps(other->second)) << it->first << " and " << other->first;
    }
    const auto on_page = [&](Point p) { return drawing.page.contains(p); };  // false for what is no number
    for (const Arrow& arrow : drawing.arrows)
        ASSERT_TRUE(on_page(arrow.from) && on_page(arrow.to));
    for (const Shape& shape : drawing.shapes) {
        ASSERT_TRUE(std::ranges::all_of(shape.points, on_page)) << "role " << static_cast<int>(shape.role);
        if (shape.role != Role::roof && shape.role != Role::wall && shape.role != Role::load_line &&
            shape.role != Role::drift_line)
            continue;
        for (std::size_t i = 1; i < shape.points.size(); ++i) {
            for (double part = 0; part <= 1; part += 1.0 / 64) {
                const Point a = shape.points[i - 1], b = shape.points[i];
                const Point p{a.x + part * (b.x - a.x), a.y + part * (b.y - a.y)};
                for (const LabelSlot& slot : drawing.label_slots)
                    ASSERT_FALSE(slot.visible && slot.area.contains(p)) << slot.name;
            }
        }
    }
}

/// Without results and with these.
void check(const Entries& entries, double load) {
    std::string typed;
    for (const Entry& entry : describe(entries.kind).entries)
        typed += std::to_string(entries.*entry.number) + " ";
    SCOPED_TRACE(std::string(describe(entries.kind).name) + " " + typed + std::to_string(load));
    ProgramCells cells;
    cells.qs_1 = cells.qs_2a = cells.qs_2c = cells.qs_3a = cells.qs_3c = cells.qs_4c = load;
    cells.level_qs1 = cells.wall_qs2 = load;
    cells.qs_2b = cells.qs_3b = cells.qs_4b = cells.level_qs2 = cells.wall_qs1 = load / 2;
    for (const bool drift_length_shown : {false, true}) {
        Drawing drawing = sketch(entries, nullptr, drift_length_shown);
        mark_as_pending(drawing);
        add_notes(drawing, std::array<std::string, 2>{"α letto come 22", std::string(200, 'W')});
        ASSERT_NO_FATAL_FAILURE(check(drawing));
    }
    ASSERT_NO_FATAL_FAILURE(check(sketch(entries, &cells)));
}

}  // namespace

TEST(SketchLayout, EveryResultHasItsPlace) {
    for (const Description& calculation : calculations()) {
        const Drawing drawing = sketch({.kind = calculation.kind}, nullptr);
        for (const ResultPlace& place : calculation.places)
            EXPECT_NE(drawing.find_slot(std::string(place.label)), nullptr) << place.label;
    }
}

TEST(SketchLayout, HoldsForWhateverIsTyped) {
    constexpr double inf = std::numeric_limits<double>::infinity();
    const std::vector<double> usual{0,  5,  15, 30,      33.333333, 45, 60,   75,
                                    89, 90, -5, 89.9999, 0.01,      1,  5.01, 99999};
    const std::vector<double> hostile{-0.0,   -1,     1e300, -1e300, 1e-300,      1e308,
                                      5e-324, 0.0099, inf,   -inf,   std::nan("")};
    std::mt19937 random(20);
    const auto any = [&] {
        const auto kind = random() % 4;
        if (kind < 2) return usual[random() % usual.size()];
        return kind == 2 ? hostile[random() % hostile.size()]
                         : std::pow(10, static_cast<double>(random() % 9000) / 1000 - 3);
    };
    check(exposure_table());
    for (int i = 0; i < 2000; ++i) {
        for (const Description& calculation : calculations()) {
            Entries entries{.kind = calculation.kind};
            for (const Entry& entry : calculation.entries)
                entries.*entry.number = any();
            ASSERT_NO_FATAL_FAILURE(check(entries, any()));
            ASSERT_NO_FATAL_FAILURE(check(shape_coefficients_over_slope(entries)));
        }
        const auto coefficient = [&] { return random() % 4 > 0 ? 1 : any(); };
        SCOPED_TRACE(i);
        ASSERT_NO_FATAL_FAILURE(check(ground_load_over_altitude(static_cast<SnowZone>(i % 4), coefficient(),
                                                                coefficient(), coefficient(), any())));
    }
}

}  // namespace coltre
