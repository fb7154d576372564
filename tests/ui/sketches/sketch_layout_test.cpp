#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "ui/sketches/sketches.h"

// Whatever the entries and the results: finite coordinates, all on the page, no label or text over another.
using namespace coltre;

namespace {

void expect_on_page(const Drawing& drawing) {
    const auto inside = [&](Point p) { return drawing.page.contains(p); };  // false for what is no number
    for (const Shape& shape : drawing.shapes) {
        for (const Point p : shape.points) {
            ASSERT_TRUE(inside(p)) << "role " << static_cast<int>(shape.role) << " " << p.x << " " << p.y;
        }
    }
    for (const Arrow& arrow : drawing.arrows)
        ASSERT_TRUE(inside(arrow.from) && inside(arrow.to));
    for (const Text& text : drawing.texts)
        ASSERT_TRUE(drawing.page.contains(text.box)) << text.text;
    for (const LabelSlot& slot : drawing.label_slots) {
        ASSERT_TRUE(drawing.page.contains(slot.area)) << slot.name;
    }
}

void expect_nothing_overlaps(const Drawing& drawing) {
    std::vector<std::pair<std::string, Rect>> boxes;
    for (const LabelSlot& slot : drawing.label_slots) {
        if (slot.visible) boxes.emplace_back(slot.name, slot.area);
    }
    for (const Text& text : drawing.texts)
        boxes.emplace_back(text.text, text.box);
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        for (std::size_t j = i + 1; j < boxes.size(); ++j) {
            ASSERT_FALSE(boxes[i].second.overlaps(boxes[j].second))
                << boxes[i].first << " and " << boxes[j].first;
        }
    }
}

/// A label lies over no slab, wall or ordinate. The end of a load may touch its label's room.
void expect_labels_clear_of_lines(const Drawing& drawing) {
    for (const LabelSlot& slot : drawing.label_slots) {
        if (!slot.visible) continue;
        for (const Shape& shape : drawing.shapes) {
            const bool solid = shape.role == Role::roof || shape.role == Role::wall ||
                               shape.role == Role::load_line || shape.role == Role::drift_line;
            if (!solid) continue;
            for (std::size_t i = 1; i < shape.points.size(); ++i) {
                for (double part = 0; part <= 1; part += 1.0 / 64) {
                    const Point a = shape.points[i - 1];
                    const Point b = shape.points[i];
                    const Point p{a.x + part * (b.x - a.x), a.y + part * (b.y - a.y)};
                    ASSERT_FALSE(slot.area.contains(p)) << slot.name << " at " << p.x << " " << p.y;
                }
            }
        }
    }
}

void check(const Drawing& drawing) {
    expect_on_page(drawing);
    expect_nothing_overlaps(drawing);
    expect_labels_clear_of_lines(drawing);
}

std::vector<std::string> slot_names(const Drawing& drawing) {
    std::vector<std::string> names;
    for (const LabelSlot& slot : drawing.label_slots)
        names.push_back(slot.name);
    return names;
}

ProgramCells some_loads(double load) {
    ProgramCells cells;
    cells.qs_1 = cells.qs_2a = cells.qs_2c = cells.qs_3a = cells.qs_3c = cells.qs_4c = load;
    cells.level_qs1 = cells.wall_qs2 = load;
    cells.qs_2b = cells.qs_3b = cells.qs_4b = cells.level_qs2 = cells.wall_qs1 = load / 2;
    return cells;
}

}  // namespace

TEST(SketchLayout, every_family_has_its_labels_and_no_other) {
    using testing::UnorderedElementsAre;
    const auto roof_slots = [](RoofFamily family) {
        return slot_names(sketch_roof({family, 20, 30, 10, 2}, nullptr));
    };
    EXPECT_THAT(roof_slots(RoofFamily::one_pitch), UnorderedElementsAre("carico_1", "spor_1"));
    EXPECT_THAT(roof_slots(RoofFamily::two_pitches),
                UnorderedElementsAre("carico_2", "carico_3", "carico_4", "carico_5", "carico_6", "carico_7",
                                     "spor_2", "spor_3", "spor_4", "spor_5"));
    EXPECT_THAT(roof_slots(RoofFamily::several_pitches),
                UnorderedElementsAre("carico_8", "carico_9", "carico_10"));
    EXPECT_THAT(roof_slots(RoofFamily::cylindrical),
                UnorderedElementsAre("carico_11", "carico_12", "carico_13", "spor_8", "spor_9", "spor_10",
                                     "L1output", "L2output"));
    const auto case_slots = [](SpecialCase special_case) {
        return slot_names(sketch_special_case({special_case, 3, 8, 2, 10, 1.28, 5}, nullptr));
    };
    EXPECT_THAT(case_slots(SpecialCase::level_change),
                UnorderedElementsAre("carico_14", "carico_15", "lsoutput"));
    EXPECT_THAT(case_slots(SpecialCase::wall),
                UnorderedElementsAre("carico_16", "carico_17", "ls2outputA", "ls2outputB"));
    EXPECT_THAT(case_slots(SpecialCase::snow_guard), UnorderedElementsAre("Fsoutput"));
}

TEST(SketchLayout, holds_for_all_pitches) {
    const std::vector<double> pitches{0, 5, 15, 30, 33.333333, 45, 60, 75, 89, 89.9999, 90, -5};
    const ProgramCells loads = some_loads(1.2);
    for (const double alfa1 : pitches) {
        for (const double alfa2 : pitches) {
            SCOPED_TRACE(testing::Message() << alfa1 << " " << alfa2);
            for (const RoofFamily family :
                 {RoofFamily::one_pitch, RoofFamily::two_pitches, RoofFamily::several_pitches}) {
                ASSERT_NO_FATAL_FAILURE(check(sketch_roof({family, alfa1, alfa2, 0, 0}, nullptr)));
                ASSERT_NO_FATAL_FAILURE(check(sketch_roof({family, alfa1, alfa2, 0, 0}, &loads)));
            }
            ASSERT_NO_FATAL_FAILURE(
                check(sketch_special_case({SpecialCase::snow_guard, 0, 0, 0, alfa1, 1.28, 5}, nullptr)));
        }
    }
}

TEST(SketchLayout, holds_for_all_vaults) {
    const ProgramCells loads = some_loads(1.2);
    for (const double by_width : {0.5, 0.45, 0.25, 0.1, 0.01, 0.001, 0.51}) {
        SCOPED_TRACE(by_width);
        const Roof roof{RoofFamily::cylindrical, 0, 0, 123.45, 123.45 * by_width};
        ASSERT_NO_FATAL_FAILURE(check(sketch_roof(roof, nullptr)));
        ASSERT_NO_FATAL_FAILURE(check(sketch_roof(roof, &loads)));
    }
}

TEST(SketchLayout, holds_for_all_steps_and_walls) {
    const ProgramCells loads = some_loads(1.2);
    const std::vector<double> lengths{0.01, 0.5, 5, 5.01, 30, 5000, 99999};
    for (const double h : lengths) {
        ASSERT_NO_FATAL_FAILURE(check(sketch_special_case({SpecialCase::wall, 0, 0, h, 0, 0, 0}, &loads)));
        for (const double b1 : lengths) {
            for (const double b2 : lengths) {
                for (const double alfa : {0.0, 10.0, 45.0, 89.0}) {
                    SCOPED_TRACE(testing::Message() << b1 << " " << b2 << " " << h << " " << alfa);
                    const SpecialCaseEntries entries{SpecialCase::level_change, b1, b2, h, alfa, 0, 0};
                    ASSERT_NO_FATAL_FAILURE(check(sketch_special_case(entries, nullptr)));
                    ASSERT_NO_FATAL_FAILURE(check(sketch_special_case(entries, &loads)));
                }
            }
        }
    }
}

TEST(SketchLayout, holds_for_whatever_is_typed) {
    constexpr double inf = std::numeric_limits<double>::infinity();
    const std::vector<double> hostile{0,     -0.0,   90,     -1, 1e300, -1e300, 1e-300,
                                      1e308, 5e-324, 0.0099, 60, inf,   -inf,   std::nan("")};
    std::mt19937 random(20);
    std::uniform_int_distribution<std::size_t> pick(0, 2 * hostile.size());
    std::uniform_real_distribution<double> exponent(-3, 6);
    const auto any = [&] {
        const std::size_t i = pick(random);
        return i < hostile.size() ? hostile[i] : std::pow(10, exponent(random));
    };
    for (int i = 0; i < 4000; ++i) {
        const Roof roof{static_cast<RoofFamily>(i % 4), any(), any(), any(), any()};
        const SpecialCaseEntries entries{
            static_cast<SpecialCase>(i % 3), any(), any(), any(), any(), any(), any()};
        const ProgramCells loads = some_loads(any());
        SCOPED_TRACE(testing::Message()
                     << i << ": " << roof.alfa1 << " " << roof.alfa2 << " " << roof.L << " " << roof.H << "; "
                     << entries.b1 << " " << entries.b2 << " " << entries.h << " " << entries.alfa << " "
                     << entries.qs << " " << entries.b << "; " << loads.qs_1);
        ASSERT_NO_FATAL_FAILURE(check(sketch_roof(roof, i % 5 == 0 ? nullptr : &loads)));
        ASSERT_NO_FATAL_FAILURE(check(sketch_special_case(entries, i % 5 == 0 ? nullptr : &loads)));
    }
}
