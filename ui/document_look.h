#pragma once

#include <QColor>
#include <QFont>
#include <QHashSeed>
#include <QPainter>
#include <QRectF>
#include <QString>
#include <QTextCharFormat>

#include "document/document.h"

// What the tree of a document looks like in a window, in PDF and in a word processor alike.
namespace coltre {

/// Fonts and colours of a document.
struct DocumentLook {
    QFont font;  ///< of plain text; all sizes follow its size, in points or in pixels
    QColor ink;
    QColor paper;
};

/// Black on white, in a font that offices have.
DocumentLook paper_look();

/// How a piece of that style is written, over the look's font.
QTextCharFormat text_format(Style style, const DocumentLook& look);

/// How a heading is written.
QTextCharFormat heading_format(int level, const DocumentLook& look);

/// The text that stands for a piece: a line of dots for a blank.
QString shown_text(const Piece& piece);

/// Paints a figure's drawing with its labels, as large as fits.
void paint_figure(QPainter& painter, const QRectF& target, const Figure& figure, const DocumentLook& look);

/// While it lives, Qt's hash tables have the same order in every run: the fonts of a PDF file and the styles
/// of an ODT file stand in that order.
class SameOrder {
  public:
    SameOrder() { QHashSeed::setDeterministicGlobalSeed(); }
    ~SameOrder() { QHashSeed::resetRandomGlobalSeed(); }
    SameOrder(const SameOrder&) = delete;
    SameOrder& operator=(const SameOrder&) = delete;
};

}  // namespace coltre
