#pragma once

#include <QByteArray>
#include <QTextDocument>

#include "document/document.h"
#include "ui/document_look.h"

namespace coltre {

/// Where a flowing text goes.
struct Flow {
    double width = 0;  ///< of the lines, in the text's pixels: an inch has 96
    double dots = 1;   ///< of a figure's picture for each of those pixels
    /// For Qt's writer of ODT files, which wants the widths of columns as lengths and the font of each piece
    /// by one name.
    bool into_file = false;
};

/// Writes the document anew into a text that flows. The remark of a formula line stands at the right, below
/// the formula where there is no room; figures are pictures. In a file the header stands before it and the
/// footer behind it: Qt's writer of ODT files knows no others.
void write_text(const Document& document, const DocumentLook& look, const Flow& flow, QTextDocument& text);

/// The document as an ODT file, which word processors open: A4, the figures as pictures of 200 dots an inch.
/// The same document gives the same bytes.
/// @return empty if it could not be made
QByteArray to_odt(const Document& document);

}  // namespace coltre
