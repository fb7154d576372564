#include "drawings/diagrams.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

namespace coltre {
namespace {

const Shape& first(const Drawing& drawing, Role role) {
    static const Shape none;
    const auto found = std::ranges::find(drawing.shapes, role, &Shape::role);
    return found == drawing.shapes.end() ? none : *found;
}

/// Values of a diagram at its points: the origin and the ends of its axes are its first two lines.
struct Scale {
    explicit Scale(const Drawing& drawing, double x_end, double y_end)
        : origin(drawing.shapes[0].points[0]),
          x(x_end / (drawing.shapes[0].points[1].x - origin.x)),
          y(y_end / (drawing.shapes[1].points[1].y - origin.y)) {}
    [[nodiscard]] Point value(Point p) const { return {(p.x - origin.x) * x, (p.y - origin.y) * y}; }
    Point origin;
    double x, y;
};

Point middle(const Shape& mark) {
    return {(mark.points[0].x + mark.points[2].x) / 2, mark.points[0].y};
}

std::vector<std::string> texts(const Drawing& drawing) {
    std::vector<std::string> texts;
    for (const Text& text : drawing.texts)
        texts.push_back(text.text);
    return texts;
}

// By hand, zone II with factors 0.5, 1.1 and 1: 0.55 up to 200 m; at 1000 m 0.85 (1 + (1000 / 481)^2) 0.55 =
// 2.48815, at 1600 m 5.64037. The highest curve, zone I Mediterranea, ends at 5.98748: an axis up to 6.
TEST(AltitudeDiagram, IsTheLoadThatTheCalculationComputes) {
    const Drawing drawing = ground_load_over_altitude(2, 0.5, 1.1, 1, 1000);
    EXPECT_NE(std::ranges::find(drawing.texts, std::string("altitudine as [m]"), &Text::text),
              drawing.texts.end());
    const Scale scale(drawing, 1600, 6);
    std::vector<Point> curve;
    for (const Shape& shape : drawing.shapes)
        if (shape.role == Role::curve)
            for (const Point p : shape.points)
                curve.push_back(scale.value(p));
    const auto load_at = [&](double altitude) {
        const auto found =
            std::ranges::find_if(curve, [&](Point p) { return std::abs(p.x - altitude) < 1e-6; });
        return found == curve.end() ? -1 : found->y;
    };
    EXPECT_NEAR(load_at(0), 0.55, 1e-9);
    EXPECT_NEAR(load_at(200), 0.55, 1e-9) << "the limit belongs to the constant";
    EXPECT_NEAR(load_at(1000), 2.48815, 1e-5);
    EXPECT_NEAR(load_at(1600), 5.64037, 1e-5);
    const Point marked = scale.value(middle(first(drawing, Role::mark)));
    EXPECT_NEAR(marked.x, 1000, 1e-6);
    EXPECT_NEAR(marked.y, 2.48815, 1e-5);
    EXPECT_THAT(texts(drawing), testing::IsSupersetOf({"Zona II, as = 1000 m: qsk = 2,4882 kN/m²", "200 m",
                                                       "1500 m", "Zona I Alpina", "Zona III"}));

    EXPECT_TRUE(first(ground_load_over_altitude(2, 0.5, 1, 1, 1601), Role::mark).points.empty());
    EXPECT_TRUE(ground_load_over_altitude(2, 0.5, 1, 0, 500).neutral) << "no load at all";
    EXPECT_TRUE(ground_load_over_altitude(2, 0.5, 1e308, 1e308, 500).neutral) << "not computable";
}

TEST(ShapeCoefficientDiagram, MarksThePitchesOfTheRoof) {
    const Drawing drawing =
        shape_coefficients_over_slope({.kind = Kind::several_pitches, .alfa1 = 15, .alfa2 = 40.5});
    const Scale scale(drawing, 90, 1.6);
    std::vector<Point> marked;
    for (const Shape& shape : drawing.shapes)
        if (shape.role == Role::mark) marked.push_back(scale.value(middle(shape)));
    // 0.8 (60 - 40.5) / 30 = 0.52; the mean 27.75 on mu2: 0.8 + 0.8 27.75 / 30 = 1.54.
    const std::vector<Point> expected{{15, 0.8}, {40.5, 0.52}, {27.75, 1.54}};
    ASSERT_EQ(marked.size(), 3U);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(marked[i].x, expected[i].x, 1e-9);
        EXPECT_NEAR(marked[i].y, expected[i].y, 1e-9);
    }
    EXPECT_THAT(texts(drawing), testing::IsSupersetOf({"α1 = 15°: µ1 = 0,8", "α2 = 40,5°: µ1 = 0,52",
                                                       "media = 27,75°: µ2 = 1,54"}));
    for (const Entries& without : {Entries{.kind = Kind::one_pitch, .alfa = -1}, Entries{.kind = Kind::wall}})
        EXPECT_TRUE(first(shape_coefficients_over_slope(without), Role::mark).points.empty());
}

}  // namespace
}  // namespace coltre
