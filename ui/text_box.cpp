#include "ui/text_box.h"

#include <algorithm>

namespace coltre {

namespace {

constexpr double unlimited = 1e6;
constexpr double line_height = 1.32;  // of the letters

}  // namespace

TextBox::TextBox(const Pieces& pieces, const DocumentLook& look) : TextBox(look.font) {
    QString text;
    QList<QTextLayout::FormatRange> formats;
    for (const Piece& piece : pieces) {
        const QString shown = shown_text(piece);
        if (piece.style != Style::plain)
            formats.push_back({static_cast<int>(text.size()), static_cast<int>(shown.size()),
                               text_format(piece.style, look)});
        text += shown;
    }
    m_layout.setText(text);
    m_layout.setFormats(formats);
}

TextBox::TextBox(const QString& text, const QTextCharFormat& format, const DocumentLook& look)
    : TextBox(look.font) {
    m_layout.setText(text);
    m_layout.setFormats({{0, static_cast<int>(text.size()), format}});
}

double TextBox::natural_width() {
    if (m_layout.lineCount() == 0) lay_out(unlimited);
    return m_layout.maximumWidth();
}

void TextBox::lay_out(double width, Qt::Alignment alignment, double hanging) {
    QTextOption option(alignment);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    m_layout.setTextOption(option);
    m_layout.beginLayout();
    m_tops = {0};
    for (double indent = 0;; indent = hanging) {
        QTextLine line = m_layout.createLine();
        if (!line.isValid()) break;
        line.setLineWidth(width - indent);
        const double height = std::max(line.height(), m_layout.font().pixelSize() * line_height);
        line.setPosition({indent, m_tops.back() + (height - line.height()) / 2});
        m_tops.push_back(m_tops.back() + height);
    }
    m_layout.endLayout();
}

void TextBox::break_before_equals(double width) {
    QString text = m_layout.text();
    lay_out(unlimited);
    const QTextLine line = m_layout.lineAt(0);
    double begin = 0;
    double last_x = 0;
    qsizetype last = -1;
    const auto break_at_last = [&] {
        if (last < 0) return;
        text[last] = QChar::LineSeparator;
        begin = last_x;
        last = -1;
    };
    for (qsizetype at = text.indexOf(" = "); at >= 0; at = text.indexOf(" = ", at + 1)) {
        const double x = line.cursorToX(static_cast<int>(at));
        if (x - begin > width) break_at_last();
        last = at;
        last_x = x;
    }
    if (line.naturalTextWidth() - begin > width) break_at_last();
    m_layout.setText(text);
}

}  // namespace coltre
