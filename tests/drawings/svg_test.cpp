#include "drawings/svg.h"

#include <gmock/gmock.h>

#include "drawings/sketches.h"

namespace coltre {
namespace {

using testing::HasSubstr;
using testing::Not;

TEST(Svg, HoldsTheTextsWithTheirNumbersAndNoEmptySlot) {
    const Drawing drawing =
        sketch({.kind = Kind::level_change, .alfa = 10, .b1 = 3, .b2 = 8, .h = 2}, nullptr, false);
    const std::string svg =
        to_svg(drawing, {{{"carico_14", " 3.7594"}, {"carico_15", " "}, {"lsoutput", " 5"}}, ""});
    EXPECT_THAT(svg, HasSubstr(R"(viewBox="0 0 7500 4300" width="132.3mm" height="75.8mm")"));
    EXPECT_THAT(svg, HasSubstr(R"(>qs2 = <tspan fill="#000000">3.7594</tspan> kN/m²</text>)"));
    EXPECT_THAT(svg, HasSubstr(">b2 = 8 m</text>"));
    EXPECT_THAT(svg, Not(HasSubstr("qs1"))) << "no number";
    EXPECT_THAT(svg, Not(HasSubstr("ls ="))) << "a hidden slot";

    Drawing two = sketch({.kind = Kind::two_pitches, .alfa1 = 20, .alfa2 = 40}, nullptr);
    mark_as_pending(two);
    const std::string pending = to_svg(two, {{{"spor_2", " 0.623"}}, ""});
    const std::string grey = R"(qe = <tspan fill="#737373">0.623</tspan></text>)";
    EXPECT_NE(pending.find(grey), pending.rfind(grey)) << "in both arrangements, and stale";
    EXPECT_THAT(pending, HasSubstr("risultati non aggiornati"));
}

// Lines and areas by their corners, half a tenth of a twip rounded away; no text can leave its place.
TEST(Svg, WritesEveryElement) {
    Drawing drawing;
    drawing.page = {-10, -5.25, 100, 50};
    drawing.shapes = {{Role::load_area, {{0, 0}, {10, 0}, {10, 5}}, true},
                      {Role::roof, {{-1.26, 2}, {3, 4.04}}, false},
                      {Role::roof, {{5, 6}, {7, 8}}, false}};
    drawing.texts = {{Role::caption, "<a> & \"b\"\n", {0, 0, 50, 10}, Align::centre}};
    const std::string svg = to_svg(drawing, {{}, "</svg>"});
    EXPECT_THAT(svg, HasSubstr(R"(viewBox="-10 -5.3 100 50")"));
    EXPECT_THAT(svg, HasSubstr(R"(fill="#d0dfef" d="M0 0L10 0L10 5Z"/>)"));
    EXPECT_THAT(svg, HasSubstr(R"(stroke-width="24" d="M-1.3 2L3 4M5 6L7 8"/>)"));
    EXPECT_THAT(svg, HasSubstr(">&lt;a&gt; &amp; \"b\" </text>"));
    EXPECT_EQ(svg.find("</svg>"), svg.size() - 7) << "at its end alone";
}

}  // namespace
}  // namespace coltre
