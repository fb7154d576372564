#pragma once

#include <string>

#include "drawings/drawing.h"

namespace coltre {

/// What goes into a picture besides its drawing.
struct SvgOptions {
    LabelTexts labels;
    std::string title;  ///< for those who do not see the picture; none when empty
};

/// The drawing as an SVG picture, black on white, for a file of its own or inside an HTML page: no scripts,
/// styles, identifiers or references; its coordinates are the twips of the page, its size that of the print.
/// Texts stay texts in the reader's own sans-serif letters. A slot without a label text stays empty.
/// @return UTF-8
std::string to_svg(const Drawing& drawing, const SvgOptions& options = {});

}  // namespace coltre
