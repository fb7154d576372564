#pragma once

#include <array>

#include "drawings/drawing.h"

// How the elements of a drawing look, the same on the screen and in every picture.
namespace coltre {

/// Parts from 0 to 1.
struct Colour {
    double red = 0;
    double green = 0;
    double blue = 0;
};

/// Two colours, light on dark or dark on light; all others are derived.
struct Inks {
    Colour ink;
    Colour paper;
};
inline constexpr Inks black_on_white{{0, 0, 0}, {1, 1, 1}};

Colour colour(Role role, const Inks& inks);

/// Of the numbers in the labels.
Colour number_colour(const Drawing& drawing, const Inks& inks);

/// Of the texts beside the numbers.
Colour symbol_colour(const Drawing& drawing, const Inks& inks);

/// True for areas without an outline.
bool is_filled(Role role);

/// Width of a line, twips.
double line_width(Role role);

/// Lengths of strokes and gaps in line widths; nothing of Role::axis alone is continuous.
inline constexpr std::array<double, 4> axis_dashes{9, 4, 2, 4};

/// What a zigzag leaves free of the line that it breaks: a stroke of that many line widths in the colour of
/// the paper.
inline constexpr double break_gap = 3;

/// Tip, and the two corners of the head of an arrow. Its shaft ends midway between these.
/// @param part  of the usual size
std::array<Point, 3> arrow_head(const Arrow& arrow, double part = 1);

/// Between a number and the texts beside it, in letter sizes.
inline constexpr double symbol_gap = 0.3;

}  // namespace coltre
