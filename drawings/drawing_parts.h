#pragma once

#include <string>
#include <utility>
#include <vector>

#include "drawings/drawing.h"

// The parts that the sketches are put together from.
namespace coltre {

// Twips of the page.
inline constexpr double wide_page = 9660;  ///< of sketches with several roofs side by side
inline constexpr double page_middle = 3750;
inline constexpr double slab_thickness = 110;
inline constexpr double slot_height = 320;   ///< of every label slot
inline constexpr double number_width = 960;  ///< room of the number in a label slot

double radians(double degrees);

/// True for a pitch that can be drawn: degrees in [0, 90[.
bool is_drawable_pitch(double degrees);

/// True for a length that can be drawn: metres in [0.01, 100000].
bool is_drawable_length(double metres);

/// A length in the sketch, brought between the limits of its room.
struct Fitted {
    double twips = 0;
    bool broken = false;  ///< out of scale: its dimension line carries a break mark
};
Fitted fit(double twips, double least, double most);

/// Horizontal run of a slope, as wide as its room allows.
/// @param pitch     drawable, degrees
/// @param max_run   twips
/// @param max_rise  twips
double run_of_slope(double pitch, double max_run, double max_rise);

/// Ordinate of a load in a diagram.
/// @param largest  load that is as tall as the room
/// @return 0 for a load that is not positive, or not finite
double ordinate(double load, double largest, double room);

/// "b1 = 3.5 m": five significant digits; the name alone in a neutral sketch.
std::string quantity(const Drawing& drawing, const std::string& name, double value, const std::string& unit);

/// "α1 = 33.33°": two decimals; the name alone in a neutral sketch.
std::string pitch_text(const Drawing& drawing, const std::string& name, double degrees);

/// The diagonals of a section: pieces of lines rising to the right, within the polygon.
std::vector<std::pair<Point, Point>> hatch_lines(const std::vector<Point>& polygon, double spacing);

/// The section of a slab under the polyline of its upper side, from left to right. Its ends are square; where
/// the slopes meet at a sharp angle the corner underneath is cut short.
std::vector<Point> slab_section(const std::vector<Point>& upper_side, double thickness);

void add_line(Drawing& drawing, Role role, Point from, Point to);

/// Outline and hatching of a section.
void add_section(Drawing& drawing, Role role, std::vector<Point> outline);

/// A piece of wall below a roof: hatched, broken off at its lower end.
/// @param top_left, top_right  where the wall meets the slab
void add_wall_stub(Drawing& drawing, Point top_left, Point top_right, double lower_end);

/// Zigzag where a part goes on.
/// @param across  unit vector along the zigzag
void add_break(Drawing& drawing, Point centre, Point across);
inline constexpr Point lying{1, 0};
inline constexpr Point upright{0, 1};

/// Zigzag where a slab goes on, across its section.
/// @param end    of its upper side
/// @param inner  the point before it on the upper side
void add_slab_break(Drawing& drawing, Point end, Point inner, double thickness);

/// A load diagram on a horizontal base: its area, its ordinates, evenly spaced arrows down to the base.
/// @param ordinates  from left to right; nothing is drawn when all lie on the base
void add_load(Drawing& drawing, const std::vector<Point>& ordinates, double base,
              Role line_role = Role::load_line);

/// A dimension line with oblique ticks: three elements.
void add_horizontal_dimension(Drawing& drawing, double x0, double x1, double y, bool broken = false,
                              Role role = Role::dimension);
void add_vertical_dimension(Drawing& drawing, double x, double y0, double y1, bool broken = false);

/// The angle between the horizontal and a slope that falls from its apex.
/// @param direction  +1 falling to the right, -1 to the left
/// @param length     of the horizontal line
void add_pitch_mark(Drawing& drawing, Point apex, double pitch, int direction, double length);

/// @param at     left end, centre or right end of the text, halfway up
/// @param room   the text may not be wider
void add_text(Drawing& drawing, Role role, const std::string& text, Point at, Align align,
              double room = 7300);

/// A caption under the drawing, centred; in a neutral sketch the note that it is one, in the caption's place.
void add_caption(Drawing& drawing, const std::string& text, Point centre, double room = 7300);

/// Room of a label slot with its texts.
double slot_width(const std::string& before, const std::string& after);

/// The slot of a label; of a name that has one already, a place where its number is repeated.
/// @param at  left end, centre or right end of the slot, halfway up; the slot is kept within the page
void add_slot(Drawing& drawing, const std::string& name, Point at, Align align, const std::string& before,
              const std::string& after);

}  // namespace coltre
