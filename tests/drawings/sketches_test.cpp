#include "drawings/sketches.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <tuple>

// That the sketches show the roof as it is: slopes, proportions, ordinates.
namespace coltre {
namespace {

std::vector<Shape> shapes_of(const Drawing& drawing, Role role) {
    std::vector<Shape> found;
    std::ranges::copy_if(drawing.shapes, std::back_inserter(found),
                         [role](const Shape& shape) { return shape.role == role; });
    return found;
}

/// Slope between two points, degrees; positive rising to the right.
double slope(Point a, Point b) {
    return std::atan2(a.y - b.y, b.x - a.x) * 180 / std::numbers::pi;
}

/// Width and height of a shape.
Rect extent(const Shape& shape) {
    const auto [left, right] = std::ranges::minmax(shape.points, {}, &Point::x);
    const auto [top, bottom] = std::ranges::minmax(shape.points, {}, &Point::y);
    return {left.x, top.y, right.x - left.x, bottom.y - top.y};
}

bool has_text(const Drawing& drawing, const std::string& text) {
    return std::ranges::find(drawing.texts, text, &Text::text) != drawing.texts.end();
}

Drawing pitched(Kind kind, double alfa1, double alfa2, const ProgramCells* loads = nullptr) {
    return sketch({.kind = kind, .alfa = alfa1, .alfa1 = alfa1, .alfa2 = alfa2}, loads);
}

Drawing level_change(double b1, double b2, double h, double alfa, const ProgramCells* loads = nullptr) {
    return sketch({.kind = Kind::level_change, .alfa = alfa, .b1 = b1, .b2 = b2, .h = h}, loads);
}

}  // namespace

TEST(PitchedSketch, SlopesAreTrue) {
    struct Row {
        Kind family;
        double alfa1, alfa2;
        std::vector<double> slopes;  ///< from the left
    };
    for (const auto& [family, alfa1, alfa2, slopes] :
         {Row{Kind::one_pitch, 0, 0, {0}}, Row{Kind::one_pitch, 7.5, 0, {7.5}},
          Row{Kind::one_pitch, 89, 0, {89}}, Row{Kind::two_pitches, 5, 60, {5, -60}},
          Row{Kind::several_pitches, 20, 40, {20, -20, 40, -40}}}) {
        const auto roofs = shapes_of(pitched(family, alfa1, alfa2), Role::roof);
        EXPECT_EQ(roofs.size(), family == Kind::two_pitches ? 3U : 1U) << "one roof an arrangement";
        for (const Shape& roof : roofs)
            for (std::size_t i = 0; i < slopes.size(); ++i)
                EXPECT_NEAR(slope(roof.points[i], roof.points[i + 1]), slopes[i], 1e-6);
    }
}

TEST(TwoPitchesSketch, ShowsTheThreeArrangementsInOneScale) {
    ProgramCells loads;
    std::tie(loads.qs_2a, loads.qs_2b, loads.qs_2c, loads.qs_2d) = std::tuple(1.2, 0.6, 0.8, 0.4);
    const Drawing drawing = pitched(Kind::two_pitches, 15, 40, &loads);
    const std::vector<Shape> areas = shapes_of(drawing, Role::load_area);
    ASSERT_EQ(areas.size(), 6U);
    const std::vector<double> expected{1.2, 0.8, 0.6, 0.8, 1.2, 0.4};
    for (std::size_t i = 0; i < 6; ++i) {
        const Rect area = extent(areas[i]);
        EXPECT_NEAR(area.height, expected[i] * extent(areas[0]).height / 1.2, 1e-6) << i;
        const Rect label = drawing.find_slot("carico_" + std::to_string(i + 2))->area;
        EXPECT_TRUE(label.x < area.right() && area.x < label.right()) << "carico " << i + 2 << " elsewhere";
    }
}

TEST(SketchOfEqualSides, IsItsOwnMirrorImage) {
    for (const Drawing& drawing : {pitched(Kind::two_pitches, 20, 20), pitched(Kind::several_pitches, 20, 20),
                                   sketch({.kind = Kind::cylindrical, .L = 10, .H = 2}, nullptr)})
        for (const Role role : {Role::roof, Role::wall}) {
            std::vector<Point> points;
            for (const Shape& shape : shapes_of(drawing, role))
                points.insert(points.end(), shape.points.begin(), shape.points.end());
            const auto [left, right] = std::ranges::minmax(points, {}, &Point::x);
            for (const Point p : points)
                EXPECT_TRUE(std::ranges::any_of(points,
                                                [&, l = left.x, r = right.x](Point q) {
                                                    return std::hypot(l + r - p.x - q.x, p.y - q.y) < 1;
                                                }))
                    << p.x << ", " << p.y;
        }
}

TEST(TwoPitchesSketch, EveryEavesArrowHasItsNumber) {
    const Drawing drawing = pitched(Kind::two_pitches, 20, 40);
    std::vector<Arrow> eaves;
    std::ranges::copy_if(drawing.arrows, std::back_inserter(eaves),
                         [](const Arrow& arrow) { return arrow.role == Role::point_load; });
    std::vector<LabelSlot> slots;
    std::ranges::copy_if(drawing.label_slots, std::back_inserter(slots),
                         [](const LabelSlot& slot) { return slot.before == "qe ="; });
    const std::vector<std::string> labels{"spor_2", "spor_4", "spor_3", "spor_4", "spor_2", "spor_5"};
    ASSERT_EQ(eaves.size(), labels.size());
    ASSERT_EQ(slots.size(), labels.size());
    for (std::size_t i = 0; i < labels.size(); ++i) {
        EXPECT_EQ(slots[i].name, labels[i]);
        EXPECT_EQ(slots[i].repeats, i == 3 || i == 4) << i;
        const Point below{eaves[i].to.x, eaves[i].to.y + 100};
        EXPECT_TRUE(slots[i].area.contains(below)) << i;
    }
}

TEST(SeveralPitchesSketch, LoadGrowsInAStraightLineIntoTheValley) {
    ProgramCells loads;
    std::tie(loads.qs_3a, loads.qs_3b, loads.qs_3c) = std::tuple(1.2, 0.8, 2.4);
    const Drawing drawing = pitched(Kind::several_pitches, 20, 40, &loads);
    const std::vector<Point> area = shapes_of(drawing, Role::load_area).front().points;
    const std::vector<Point> roof = shapes_of(drawing, Role::roof).front().points;
    const double base = area.back().y;
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_DOUBLE_EQ(area[i].x, roof[i].x) << "over its place on the roof";
    EXPECT_NEAR((base - area[1].y) / (base - area[2].y), 0.5, 1e-9);
    EXPECT_NEAR((base - area[3].y) / (base - area[2].y), 1.0 / 3, 1e-9);
}

// L1 = 2 R cos 30: of a half circle 0.866 L; of L = 10, H = 2 wider than the roof, drawn as wide and broken.
TEST(CylindricalSketch, HasTheProportionsOfTheRoofAndItsLoadedZone) {
    for (const auto& [H, width] : {std::pair{5.0, 0.8660254}, std::pair{2.0, 1.0}}) {
        const Drawing drawing = sketch({.kind = Kind::cylindrical, .L = 10, .H = H}, nullptr);
        std::vector<Point> arc = shapes_of(drawing, Role::roof).front().points;
        arc.resize(arc.size() / 2);  // the upper side
        const Rect box = extent({Role::roof, arc, false});
        EXPECT_NEAR(box.height / box.width, H / 10, 1e-9);
        // All points on the circle of radius (L^2 / 4 + H^2) / 2H.
        const double radius = (25 + H * H) / (2 * H) * box.width / 10;
        const Point centre{box.x + box.width / 2, box.y + radius};
        for (const Point p : arc)
            EXPECT_NEAR(std::hypot(p.x - centre.x, p.y - centre.y) / radius, 1, 1e-9);
        const std::vector<Shape> areas = shapes_of(drawing, Role::load_area);
        ASSERT_EQ(areas.size(), 3U);
        EXPECT_NEAR(extent(areas[0]).width, width * 2500, 1e-3);
        EXPECT_NEAR(extent(areas[1]).width, width * 1250, 1e-3);
        EXPECT_NEAR(extent(areas[2]).height, 2 * extent(areas[1]).height, 1e-6) << "mu3 and its half";
        const std::size_t walls = 4;
        EXPECT_EQ(shapes_of(drawing, Role::break_mark).size(), walls + (width < 1 ? 0 : 2)) << "L1 and L2";
    }
}

// Limits of the cut: h = 2 gives ls = 5, h = 4 gives ls = 8; equality is a cut.
TEST(LevelChangeSketch, DriftIsWholeOrCut) {
    for (const auto& [h, b2, cut] :
         {std::tuple(2., 5., true), std::tuple(2., 5.01, false), std::tuple(4., 8., true),
          std::tuple(4., 8.01, false), std::tuple(100., 15., true), std::tuple(100., 15.01, false),
          std::tuple(4., -1., true), std::tuple(-2., 6., false)}) {
        const Entries entries{.kind = Kind::level_change, .alfa = 10, .b1 = 3, .b2 = b2, .h = h};
        ProgramCells loads;
        loads.qsk = 1;
        ASSERT_FALSE(calculate(loads, entries).end.stopped());
        // Before a calculation the length of the drift stays as it was.
        for (const auto& [drawing, shown] :
             {std::pair(sketch(entries, &loads, cut), !cut), std::pair(sketch(entries, nullptr, true), true),
              std::pair(sketch(entries, nullptr, false), false)}) {
            SCOPED_TRACE(testing::Message() << h << " " << b2 << " " << shown);
            EXPECT_EQ(drawing.find_slot("lsoutput")->visible, shown);
            EXPECT_EQ(shapes_of(drawing, Role::drift_length).size(), shown ? 4U : 0U);
            EXPECT_DOUBLE_EQ(shapes_of(drawing, Role::drift_line)[0].points.back().x, cut ? 5160 : 4680);
        }
    }
}

TEST(LevelChangeSketch, LengthsHaveOneScaleUntilOneIsBroken) {
    const Drawing drawing = level_change(4, 9, 3, 20);  // ls = 6
    const std::vector<Shape> roofs = shapes_of(drawing, Role::roof);
    const std::vector<Point> lower = roofs[0].points, upper = roofs[1].points;
    const double metre = (drift_end_whole - lower[0].x) / 6;
    EXPECT_NEAR((lower[1].x - lower[0].x) / metre, 9, 1e-9);
    EXPECT_NEAR((upper[1].x - upper[0].x) / metre, 4, 1e-9);
    EXPECT_NEAR((lower[0].y - upper[1].y) / metre, 3, 1e-9);
    EXPECT_NEAR(slope(upper[0], upper[1]), -20, 1e-9);
    EXPECT_TRUE(has_text(drawing, "b2 = 9 m"));

    const std::size_t unbroken = shapes_of(drawing, Role::break_mark).size();
    const Drawing wide = level_change(4, 6000.04, 3, 20);
    EXPECT_EQ(shapes_of(wide, Role::break_mark).size(), unbroken + 2) << "on the roof and on its dimension";
    EXPECT_TRUE(has_text(wide, "b2 = 6000 m")) << "of five digits";
}

TEST(DriftSketches, OrdinatesFollowTheResults) {
    ProgramCells loads;
    loads.level_qs2 = loads.wall_qs2 = 3;
    loads.level_qs1 = loads.wall_qs1 = 1.2;
    for (const Drawing& drawing :
         {level_change(3, 8, 2, 10, &loads), sketch({.kind = Kind::wall, .h = 2.3}, &loads)}) {
        const std::vector<Point> area = shapes_of(drawing, Role::load_area).front().points;
        const double base = area.back().y;
        EXPECT_NEAR((base - area[1].y) / (base - area[0].y), 0.4, 1e-9);
    }
}

TEST(WallSketch, WallAndDriftHaveOneScale) {
    const Drawing drawing = sketch({.kind = Kind::wall, .h = 2.3}, nullptr);
    const std::vector<Point> drift = shapes_of(drawing, Role::load_area).front().points;
    const Rect top = extent(shapes_of(drawing, Role::wall).front());
    EXPECT_NEAR((drift.back().y - top.y) / (drift[1].x - drift[0].x), 2.3 / 5, 1e-9);
}

TEST(SnowGuardSketch, ForceActsDownTheSlopeOnTheObstacle) {
    const Drawing drawing = sketch({.kind = Kind::snow_guard, .alfa = 25.001, .qs = 1.28, .b = 5}, nullptr);
    const auto force = std::ranges::find(drawing.arrows, Role::point_load, &Arrow::role);
    ASSERT_NE(force, drawing.arrows.end());
    EXPECT_NEAR(slope(force->to, force->from), 25.001, 1e-9);
    EXPECT_LT(force->to.x, force->from.x);
    EXPECT_TRUE(has_text(drawing, "α = 25°"));
    EXPECT_TRUE(has_text(drawing, "qs = 1.28 kN/m²"));
}

TEST(NeutralSketch, ShowsNoValueThatItCannotDraw) {
    for (const Drawing& drawing :
         {pitched(Kind::one_pitch, 90, 0), pitched(Kind::two_pitches, 20, -1),
          sketch({.kind = Kind::cylindrical, .L = 4, .H = 2.01}, nullptr),
          sketch({.kind = Kind::cylindrical, .L = 0, .H = 0}, nullptr), level_change(3, 5, 0, 10),
          sketch({.kind = Kind::snow_guard, .alfa = 10, .qs = 1, .b = 1e300}, nullptr)}) {
        EXPECT_TRUE(drawing.neutral);
        EXPECT_TRUE(has_text(drawing, "schizzo indicativo: dati non rappresentabili"));
        for (const Text& text : drawing.texts)
            EXPECT_TRUE(text.role != Role::dimension || text.text.find(" m") == std::string::npos)
                << text.text;
    }
    EXPECT_FALSE(sketch({.kind = Kind::cylindrical, .L = 4, .H = 2}, nullptr).neutral) << "a half circle";
    EXPECT_FALSE(pitched(Kind::one_pitch, 0, 0).neutral);
}
}  // namespace coltre
