#pragma once

#include <map>
#include <string>
#include <vector>

// A sketch as a plain scene: lines, areas, arrows, texts and the places of the result labels, without colours
// and pens. Lengths in twips (1/1440 inch) of the printed sketch, x to the right, y downwards; texts UTF-8.
namespace coltre {

inline constexpr double text_height = 200;  ///< letter size of every text, twips: 10 pt in print

struct Point {
    double x = 0;
    double y = 0;
};

struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    [[nodiscard]] double right() const { return x + width; }
    [[nodiscard]] double bottom() const { return y + height; }
    [[nodiscard]] bool contains(Point p) const {
        return p.x >= x && p.x <= right() && p.y >= y && p.y <= bottom();
    }
    [[nodiscard]] bool contains(const Rect& r) const {
        return contains(Point{r.x, r.y}) && contains(Point{r.right(), r.bottom()});
    }
    [[nodiscard]] bool overlaps(const Rect& r) const {
        return x < r.right() && r.x < right() && y < r.bottom() && r.y < bottom();
    }
};

/// What an element stands for; the painter chooses pen and colours by it, so that every palette works.
enum class Role {
    roof,          ///< section of a roof slab
    wall,          ///< section of a wall or an obstacle
    hatch,         ///< diagonals of a section
    load_area,     ///< area of a load diagram
    load_line,     ///< ordinates of a load diagram
    load_arrow,    ///< direction of a distributed load
    point_load,    ///< load at the eaves, force on an obstacle
    drift_line,    ///< ordinates of the drift against a step
    snow,          ///< loaded zone in plan
    dimension,     ///< dimension lines with their ticks and texts
    drift_length,  ///< the dimension of a drift that lies wholly on its roof: four elements, or none
    axis,          ///< auxiliary lines
    break_mark,    ///< where a part too long or too short for the scale is cut
    caption,       ///< texts beside the drawing
    curve,         ///< of a diagram
    other_curve,   ///< of a diagram, to compare with
    mark,          ///< this roof on a curve
};

/// A line of straight pieces, or an area when closed.
struct Shape {
    Role role{};
    std::vector<Point> points;
    bool closed = false;
};

/// A straight arrow with its head at `to`.
struct Arrow {
    Role role{};
    Point from;
    Point to;
};

enum class Align { left, centre, right };

/// A text in one line. It stays within its box, in smaller letters where need be.
struct Text {
    Role role{};
    std::string text;
    Rect box;
    Align align{};
};

/// Where a window puts a result label: the number stands between the two texts.
struct LabelSlot {
    std::string name;    ///< name of the label, "carico_1" for instance
    Rect area;           ///< room for the number and the texts beside it
    Align align{};       ///< where they stand in it
    std::string before;  ///< symbol, "qs =" for instance
    std::string after;   ///< unit
    bool visible = true;
    bool repeats = false;  ///< a label stands once: here its number is drawn again
};

/// Texts of result labels by the names of their slots, UTF-8.
using LabelTexts = std::map<std::string, std::string>;

/// A complete sketch. All that it holds lies within the page.
struct Drawing {
    Rect page{0, 0, 7500, 4300};
    bool neutral = false;  ///< the entries make no roof: a general shape stands for it, without dimensions
    bool pending = false;  ///< the numbers of its labels belong to other entries: they are shown in grey
    std::vector<Shape> shapes;
    std::vector<Arrow> arrows;
    std::vector<Text> texts;
    std::vector<LabelSlot> label_slots;

    /// The slot where the label of that name stands, or null.
    [[nodiscard]] const LabelSlot* find_slot(const std::string& name) const;
};

/// Width that a text takes at full size, by a generous average width of letters.
double text_width(const std::string& text);

}  // namespace coltre
