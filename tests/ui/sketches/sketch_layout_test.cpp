#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <random>

#include "ui/sketches/sketches.h"

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
void check(const Roof& roof, const SpecialCaseEntries& entries, double load) {
    SCOPED_TRACE(testing::PrintToString(std::tuple(roof.family, roof.alfa1, roof.alfa2, roof.L, roof.H)));
    SCOPED_TRACE(testing::PrintToString(
        std::tuple(entries.b1, entries.b2, entries.h, entries.alfa, entries.qs, entries.b, load)));
    ProgramCells cells;
    cells.qs_1 = cells.qs_2a = cells.qs_2c = cells.qs_3a = cells.qs_3c = cells.qs_4c = load;
    cells.level_qs1 = cells.wall_qs2 = load;
    cells.qs_2b = cells.qs_3b = cells.qs_4b = cells.level_qs2 = cells.wall_qs1 = load / 2;
    for (const ProgramCells* loads : {static_cast<const ProgramCells*>(nullptr), &std::as_const(cells)}) {
        ASSERT_NO_FATAL_FAILURE(check(sketch_roof(roof, loads)));
        ASSERT_NO_FATAL_FAILURE(check(sketch_special_case(entries, loads)));
    }
}

}  // namespace

TEST(SketchLayout, EveryFamilyHasItsLabelsAndNoOther) {
    std::string names;
    const auto add = [&names](const Drawing& drawing) {
        for (const LabelSlot& slot : drawing.label_slots)
            names += slot.name + " ";
        names += "| ";
    };
    for (int i = 0; i < 4; ++i)
        add(sketch_roof({static_cast<RoofFamily>(i), 20, 30, 10, 2}, nullptr));
    for (int i = 0; i < 3; ++i)
        add(sketch_special_case({static_cast<SpecialCase>(i), 3, 8, 2, 10, 1, 5}, nullptr));
    EXPECT_EQ(names,
              "carico_1 spor_1 | carico_2 carico_3 spor_2 spor_4 carico_4 carico_5 spor_3 carico_6 carico_7 "
              "spor_5 | carico_8 carico_9 carico_10 | carico_11 carico_12 carico_13 L1output L2output spor_8 "
              "spor_9 spor_10 | carico_14 carico_15 lsoutput | carico_17 carico_16 ls2outputA ls2outputB | "
              "Fsoutput | ");
}

TEST(SketchLayout, HoldsForAllPitchesAndVaults) {
    const std::vector<double> pitches{0, 5, 15, 30, 33.333333, 45, 60, 75, 89, 89.9999, 90, -5};
    for (const double alfa1 : pitches) {
        const SpecialCaseEntries guard{SpecialCase::snow_guard, 0, 0, 0, alfa1, 1.28, 5};
        for (const double alfa2 : pitches)
            for (int i = 0; i < 3; ++i)
                ASSERT_NO_FATAL_FAILURE(check({static_cast<RoofFamily>(i), alfa1, alfa2, 0, 0}, guard, 1.2));
        for (const double by_width : {0.5, 0.45, 0.25, 0.1, 0.01, 0.001, 0.51})
            ASSERT_NO_FATAL_FAILURE(
                check({RoofFamily::cylindrical, 0, 0, 123.45, 123.45 * by_width}, guard, 1.2));
    }
}

TEST(SketchLayout, HoldsForAllStepsAndWalls) {
    const std::vector<double> lengths{0.01, 0.5, 5, 5.01, 30, 5000, 99999};
    for (const double h : lengths) {
        ASSERT_NO_FATAL_FAILURE(check({}, {SpecialCase::wall, 0, 0, h, 0, 0, 0}, 1.2));
        for (const double b1 : lengths)
            for (const double b2 : lengths)
                for (const double alfa : {0.0, 10.0, 45.0, 89.0})
                    ASSERT_NO_FATAL_FAILURE(
                        check({}, {SpecialCase::level_change, b1, b2, h, alfa, 0, 0}, 1.2));
    }
}

TEST(SketchLayout, HoldsForWhateverIsTyped) {
    constexpr double inf = std::numeric_limits<double>::infinity();
    const std::vector<double> hostile{0,     -0.0,   90,     -1, 1e300, -1e300, 1e-300,
                                      1e308, 5e-324, 0.0099, 60, inf,   -inf,   std::nan("")};
    std::mt19937 random(20);
    const auto any = [&] {
        const std::size_t i = random() % (2 * hostile.size());
        return i < hostile.size() ? hostile[i]
                                  : std::pow(10, static_cast<double>(random() % 9000) / 1000 - 3);
    };
    for (int i = 0; i < 4000; ++i)
        ASSERT_NO_FATAL_FAILURE(
            check({static_cast<RoofFamily>(i % 4), any(), any(), any(), any()},
                  {static_cast<SpecialCase>(i % 3), any(), any(), any(), any(), any(), any()}, any()));
}
}  // namespace coltre
