#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "drawings/drawing.h"

// A document as a plain tree: what stands in it, in which order, without pages, fonts and colours. HTML is
// made of it here, PDF and ODT by the windows. Texts are UTF-8.
namespace coltre {

/// How a piece of text is written.
enum class Style {
    plain,
    strong,    ///< results, and the worst of a table
    emphasis,  ///< conditions and what governed
    symbol,    ///< a letter that stands for a quantity
    subscript,
    code,   ///< texts to be typed as they stand
    note,   ///< remarks and sources
    blank,  ///< a line to write on; its text says what for
};

/// A piece of text in one style.
struct Piece {
    std::string text;
    Style style = Style::plain;

    bool operator==(const Piece&) const = default;
};

/// Text in one line or paragraph.
using Pieces = std::vector<Piece>;

struct Heading {
    int level = 1;  ///< 1 the document's title, 2 a section, 3 a part of one
    std::string text;
};

struct Paragraph {
    Pieces pieces;
};

/// A line of the calculation: what was computed, and at the right what chose it or where it comes from.
struct FormulaLine {
    Pieces formula;  ///< symbol = formula = numbers = value unit
    Pieces remark;   ///< condition, limit that governed, source; empty where nothing is to be said
};

enum class ColumnAlign { left, right };

struct Table {
    std::vector<ColumnAlign> columns;
    std::vector<Pieces> header;             ///< as long as the columns; empty without a header
    std::vector<std::vector<Pieces>> rows;  ///< each as long as the columns
};

/// A drawing, as wide as the text at most.
struct Figure {
    Drawing drawing;
    std::map<std::string, std::string> labels;  ///< texts of the drawing's label slots, by name
    std::string caption;
};

/// Lines to be copied character for character.
struct CodeBlock {
    std::string text;
};

using Block = std::variant<Heading, Paragraph, FormulaLine, Table, Figure, CodeBlock>;

struct Document {
    std::string title;  ///< of the file
    std::string page_header;
    std::string page_footer;  ///< what stands before the page number
    std::vector<Block> blocks;
};

/// Text in the plain style.
Pieces plain(std::string_view text);

/// The text of the pieces without their styles.
std::string plain_text(const Pieces& pieces);

}  // namespace coltre
