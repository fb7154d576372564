#include "ui/document_look.h"

#include "ui/sketch_painter.h"

namespace coltre {

namespace {

bool is_dark(const DocumentLook& look) {
    return look.paper.lightness() < 128;
}

void set_size(QTextCharFormat& format, const QFont& font, double part) {
    if (font.pixelSize() > 0) {
        format.setProperty(QTextFormat::FontPixelSize, qRound(font.pixelSize() * part));
    } else {
        format.setFontPointSize(font.pointSizeF() * part);
    }
}

void set_families(QTextCharFormat& format, const QStringList& families, QFont::StyleHint hint) {
    format.setFontFamilies(families);
    format.setFontStyleHint(hint);
}

}  // namespace

DocumentLook paper_look() {
    QFont font;
    font.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("Arial")});
    font.setStyleHint(QFont::SansSerif);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPointSizeF(10);
    return {font, Qt::black, Qt::white};
}

QTextCharFormat text_format(Style style, const DocumentLook& look) {
    QTextCharFormat format;
    switch (style) {
        case Style::plain:
            break;
        case Style::strong:
            format.setFontWeight(QFont::Bold);
            break;
        case Style::emphasis:
            format.setForeground(is_dark(look) ? QColor(255, 170, 110) : QColor(138, 60, 0));
            break;
        case Style::symbol:
            set_families(format, {QStringLiteral("Liberation Serif"), QStringLiteral("Times New Roman")},
                         QFont::Serif);
            format.setFontItalic(true);
            set_size(format, look.font, 1.05);
            break;
        case Style::subscript:
            format.setVerticalAlignment(QTextCharFormat::AlignSubScript);
            break;
        case Style::code:
            set_families(format, {QStringLiteral("Liberation Mono"), QStringLiteral("Courier New")},
                         QFont::Monospace);
            set_size(format, look.font, 0.9);
            break;
        case Style::note:
        case Style::blank:
            format.setForeground(is_dark(look) ? QColor(180, 180, 180) : QColor(85, 85, 85));
            set_size(format, look.font, 0.9);
            break;
    }
    return format;
}

QTextCharFormat heading_format(int level, const DocumentLook& look) {
    QTextCharFormat format;
    format.setFontWeight(QFont::Bold);
    set_size(format, look.font, level <= 1 ? 1.6 : level == 2 ? 1.25 : 1.1);
    return format;
}

QString shown_text(const Piece& piece) {
    constexpr int dots = 56;  // some 5 cm to write on
    return piece.style == Style::blank ? QString(dots, '.') : QString::fromStdString(piece.text);
}

void paint_figure(QPainter& painter, const QRectF& target, const Figure& figure, const DocumentLook& look) {
    QPalette palette;
    palette.setColor(QPalette::Text, look.ink);
    palette.setColor(QPalette::Base, look.paper);
    const SketchPainter sketch(figure.drawing, target, {palette, look.font});
    sketch.paint(painter);
    sketch.paint_numbers(painter, figure.labels);
}

}  // namespace coltre
