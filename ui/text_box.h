#pragma once

#include <QPainter>
#include <QPointF>
#include <QString>
#include <QTextCharFormat>
#include <QTextLayout>
#include <vector>

#include "document/document.h"
#include "ui/document_look.h"

namespace coltre {

/// A text with its styles, laid out in lines. Lengths are those of the device that it is painted on.
class TextBox {
  public:
    TextBox(const Pieces& pieces, const DocumentLook& look);
    TextBox(const QString& text, const QTextCharFormat& format, const DocumentLook& look);

    /// Width in one line.
    double natural_width();

    /// @param hanging  indent of all lines but the first
    void lay_out(double width, Qt::Alignment alignment = Qt::AlignLeft, double hanging = 0);

    /// Has lines break before an equals sign where they are to be no wider than this.
    void break_before_equals(double width);

    [[nodiscard]] double height() const { return m_tops.back(); }
    [[nodiscard]] int lines() const { return m_layout.lineCount(); }
    [[nodiscard]] double height_of_line(int i) const { return top_of_line(i + 1) - top_of_line(i); }

    void paint(QPainter& painter, QPointF at) const { m_layout.draw(&painter, at); }
    void paint_line(QPainter& painter, int i, QPointF at) const {
        m_layout.lineAt(i).draw(&painter, at - QPointF(0, top_of_line(i)));
    }

  private:
    [[nodiscard]] double top_of_line(int i) const { return m_tops[static_cast<std::size_t>(i)]; }

    explicit TextBox(const QFont& font) {
        m_layout.setFont(font);
        m_layout.setCacheEnabled(true);
    }

    QTextLayout m_layout;
    std::vector<double> m_tops{0};  // of the lines, and the end of the last
};

}  // namespace coltre
