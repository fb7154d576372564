#include "ui/document_text.h"

#include <QBuffer>
#include <QImage>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocumentWriter>
#include <QTextLayout>
#include <QTextTable>
#include <QUrl>
#include <QtEndian>
#include <QtMath>
#include <algorithm>
#include <array>
#include <numeric>

#include "ui/pagination.h"

namespace coltre {

namespace {

constexpr double screen_dpi = 96;
constexpr double twips_a_pixel = 1440 / screen_dpi;
constexpr double screen_mm = screen_dpi / 25.4;
constexpr double cell_padding = 1.2 * screen_mm;
constexpr double column_gap = 4 * screen_mm;
constexpr double paper_width = 170 * screen_mm;  // of an A4 page as word processors set it up

/// Writes the blocks one after the other.
class TextWriter {
  public:
    TextWriter(QTextDocument& text, const DocumentLook& look, const Flow& flow)
        : m_text(text), m_cursor(&text), m_look(look), m_flow(flow), m_metrics(measures()) {
        for (std::size_t i = 0; i < m_formats.size(); ++i)
            m_formats[i] = named(text_format(static_cast<Style>(i), look));
    }

    void operator()(const Heading& heading) {
        QTextBlockFormat format = margins(heading.level <= 2 ? 1.2 : 0.8, 0.3);
        format.setHeadingLevel(heading.level);
        const QTextCharFormat letters = named(heading_format(heading.level, m_look));
        begin_block(format, letters);
        m_cursor.insertText(QString::fromStdString(heading.text), letters);
    }

    void operator()(const Paragraph& paragraph) {
        begin_block(margins(0.3, 0.3));
        insert(paragraph.pieces);
    }

    void operator()(const FormulaLine& line) {
        Pieces formula = line.formula;
        for (Piece& piece : formula)
            break_before_equals(piece.text);
        Pieces both = formula;
        both.insert(both.end(), line.remark.begin(), line.remark.end());
        const bool side_by_side =
            !line.remark.empty() && natural_width(both, m_metrics) + column_gap <= m_flow.width;
        QTextBlockFormat format = margins(0.1, 0.1);
        if (side_by_side) format.setTabPositions({QTextOption::Tab(m_flow.width, QTextOption::RightTab)});
        begin_block(format);
        insert(formula);
        if (line.remark.empty()) return;
        if (side_by_side) {
            m_cursor.insertText(QStringLiteral("\t"), {});
        } else {
            QTextBlockFormat below = margins(0, 0.1);
            below.setAlignment(Qt::AlignRight);
            begin_block(below);
        }
        insert(line.remark);
    }

    void operator()(const Table& table) {
        const int columns = static_cast<int>(table.columns.size());
        const int header_rows = table.header.empty() ? 0 : 1;
        const int rows = header_rows + static_cast<int>(table.rows.size());
        if (rows == 0 || columns == 0) return;
        QTextTableFormat format;
        format.setCellPadding(cell_padding);
        format.setTopMargin(2 * screen_mm);
        format.setBottomMargin(2 * screen_mm);
        format.setBorder(1);
        // On a screen borders lie on each other: they look like joined ones, which are drawn many times as
        // slowly.
        format.setBorderCollapse(m_flow.into_file);
        format.setCellSpacing(m_flow.into_file ? 0 : -1);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderBrush(QColor(150, 150, 150));
        format.setHeaderRowCount(header_rows);
        if (m_flow.into_file) set_column_widths(format, column_widths(natural_widths(table), m_flow.width));
        QTextTable* const grid = m_cursor.insertTable(rows, columns, format);
        for (int row = 0; row < rows; ++row) {
            const bool header = row < header_rows;
            const auto& cells =
                header ? table.header : table.rows[static_cast<std::size_t>(row - header_rows)];
            for (int column = 0; column < columns; ++column) {
                const auto i = static_cast<std::size_t>(column);
                fill(grid->cellAt(row, column), cells[i],
                     table.columns[i] == ColumnAlign::right ? Qt::AlignRight : Qt::AlignLeft, header);
            }
        }
        m_cursor.movePosition(QTextCursor::End);
    }

    void operator()(const Figure& figure) {
        const Rect& page = figure.drawing.page;
        const double scale = std::min(1 / twips_a_pixel, m_flow.width / page.width);
        const QSizeF size(page.width * scale, page.height * scale);
        QImage image((size * m_flow.dots).toSize(), QImage::Format_RGB32);
        image.fill(m_look.paper);
        {
            QPainter painter(&image);
            paint_figure(painter, QRectF({}, image.size()), figure, m_look);
        }
        const QString name = QStringLiteral("figura-%1.png").arg(++m_figures);
        m_text.addResource(QTextDocument::ImageResource, QUrl(name), image);
        QTextImageFormat format;
        format.setName(name);
        format.setWidth(size.width());
        format.setHeight(size.height());
        QTextBlockFormat centred = margins(0.6, 0.2);
        centred.setAlignment(Qt::AlignHCenter);
        begin_block(centred);
        m_cursor.insertImage(format);
        if (figure.caption.empty()) return;
        QTextBlockFormat below = margins(0, 0.8);
        below.setAlignment(Qt::AlignHCenter);
        begin_block(below);
        insert({{figure.caption, Style::note}});
    }

    void operator()(const CodeBlock& code) {
        QTextBlockFormat format = margins(0.3, 0.3);
        format.setLeftMargin(3 * screen_mm);
        const QTextCharFormat& letters = format_of(Style::code);
        begin_block(format, letters);
        QString text = QString::fromStdString(code.text);
        m_cursor.insertText(text.replace('\n', QChar::LineSeparator), letters);
    }

  private:
    /// Ties an equals sign to what follows: a long formula breaks before it.
    static void break_before_equals(std::string& text) {
        for (std::size_t at = 0; (at = text.find("= ", at)) != std::string::npos; ++at)
            text.replace(at, 2, "=\u00a0");
    }

    /// @param above, below  in lines
    [[nodiscard]] QTextBlockFormat margins(double above, double below) const {
        const double line = m_metrics.height();
        QTextBlockFormat format;
        format.setTopMargin(above * line);
        format.setBottomMargin(below * line);
        return format;
    }

    static void set_column_widths(QTextTableFormat& format, const std::vector<double>& widths) {
        constexpr double points_a_pixel = 72 / screen_dpi;  // Qt's writer calls these lengths points
        QList<QTextLength> lengths;
        for (const double width : widths)
            lengths += QTextLength(QTextLength::FixedLength, width * points_a_pixel);
        format.setColumnWidthConstraints(lengths);
        format.setWidth(std::accumulate(widths.begin(), widths.end(), 0.0) * points_a_pixel);
    }

    /// For texts on a screen, or on paper with the same 96 dots an inch.
    [[nodiscard]] QFontMetricsF measures(bool bold = false) const {
        QFont font = m_look.font;
        font.setBold(bold);
        if (m_flow.into_file) font.setPixelSize(qCeil(font.pointSizeF() * screen_dpi / 72));
        return QFontMetricsF(font);
    }

    /// Width in one line, rather too much: without the smaller letters of subscripts and notes.
    static double natural_width(const Pieces& pieces, const QFontMetricsF& metrics) {
        QString text;
        for (const Piece& piece : pieces)
            text += shown_text(piece);
        return metrics.horizontalAdvance(text);
    }

    [[nodiscard]] std::vector<double> natural_widths(const Table& table) const {
        constexpr double other_fonts = 1.15;  // that stand in for a missing one may be wider
        const QFontMetricsF metrics = measures(true);
        std::vector<double> widths(table.columns.size());
        const auto widen = [&](const std::vector<Pieces>& cells) {
            for (std::size_t i = 0; i < cells.size(); ++i)
                widths[i] =
                    std::max(widths[i], other_fonts * natural_width(cells[i], metrics) + 2 * cell_padding);
        };
        widen(table.header);
        for (const auto& cells : table.rows)
            widen(cells);
        return widths;
    }

    /// Begins a paragraph: the empty one that a text begins with and that stands behind a table, or a new
    /// one.
    void begin_block(const QTextBlockFormat& format, const QTextCharFormat& letters = {}) {
        if (m_cursor.block().length() > 1) {
            m_cursor.insertBlock(format, letters);
        } else {
            m_cursor.setBlockFormat(format);
            m_cursor.setBlockCharFormat(letters);
        }
    }

    void fill(const QTextTableCell& cell, const Pieces& pieces, Qt::Alignment alignment, bool bold = false) {
        m_cursor = cell.firstCursorPosition();
        QTextBlockFormat format = margins(0.1, 0.1);
        format.setAlignment(alignment);
        m_cursor.setBlockFormat(format);
        insert(pieces, bold);
    }

    /// The format with its font under the name that goes into a file.
    [[nodiscard]] QTextCharFormat named(QTextCharFormat format) const {
        if (m_flow.into_file) {
            if (!format.hasProperty(QTextFormat::FontFamilies))
                format.setFontFamilies(m_look.font.families());
            format.setProperty(QTextFormat::FontFamily, format.fontFamilies().toStringList().value(0));
        }
        return format;
    }

    [[nodiscard]] const QTextCharFormat& format_of(Style style) const {
        return m_formats[static_cast<std::size_t>(style)];
    }

    void insert(const Pieces& pieces, bool bold = false) {
        for (const Piece& piece : pieces) {
            QTextCharFormat format = format_of(piece.style);
            if (bold) format.setFontWeight(QFont::Bold);
            m_cursor.insertText(shown_text(piece), format);
        }
    }

    QTextDocument& m_text;
    QTextCursor m_cursor;  // at the end of the text
    const DocumentLook& m_look;
    Flow m_flow;
    QFontMetricsF m_metrics;
    std::array<QTextCharFormat, static_cast<std::size_t>(Style::blank) + 1> m_formats;  // by Style
    int m_figures = 0;
};

/// Gives the entries of a ZIP archive a date of their own in place of the clock's.
void fix_dates(QByteArray& zip) {
    constexpr quint32 first_of_1980 = 0x00210000;  // the oldest that the format knows
    const auto overwrite = [&zip](quint32 at) {
        if (at + 4 <= zip.size()) qToLittleEndian(first_of_1980, zip.data() + at);
    };
    // The directory at the end, an entry of 46 bytes and three texts for each file.
    constexpr qsizetype entry_size = 46;
    for (qsizetype entry = zip.indexOf("PK\1\2"); entry >= 0 && entry + entry_size <= zip.size();
         entry = zip.indexOf("PK\1\2", entry + entry_size)) {
        overwrite(static_cast<quint32>(entry) + 12);
        overwrite(qFromLittleEndian<quint32>(zip.constData() + entry + 42) + 10);  // the file's own header
    }
}

}  // namespace

void write_text(const Document& document, const DocumentLook& look, const Flow& flow, QTextDocument& text) {
    text.clear();
    text.setUndoRedoEnabled(false);
    text.setDefaultFont(look.font);
    text.setMetaInformation(QTextDocument::DocumentTitle, QString::fromStdString(document.title));
    QTextCursor all(&text);
    all.beginEditBlock();  // lines are made once, at the end
    TextWriter writer(text, look, flow);
    const auto note = [&](const std::string& line) {
        if (flow.into_file && !line.empty()) writer(Paragraph{{{line, Style::note}}});
    };
    note(document.page_header);
    for (const Block& block : document.blocks)
        std::visit(writer, block);
    note(document.page_footer);
    // The letters placed for the lines are kept until they are painted.
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next())
        block.layout()->setCacheEnabled(true);
    all.endEditBlock();
}

QByteArray to_odt(const Document& document) {
    const SameOrder same_order;
    QTextDocument text;
    write_text(document, paper_look(), {.width = paper_width, .dots = 200 / screen_dpi, .into_file = true},
               text);
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    if (!QTextDocumentWriter(&buffer, "ODF").write(&text)) return {};
    fix_dates(content);
    return content;
}

}  // namespace coltre
