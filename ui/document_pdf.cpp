#include "ui/document_pdf.h"

#include <QBuffer>
#include <QDateTime>
#include <QFontMetricsF>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <functional>
#include <memory>
#include <utility>

#include "ui/document_look.h"
#include "ui/pagination.h"
#include "ui/text_box.h"

namespace coltre {

namespace {

// Lengths in twips, as in drawings.
constexpr int dots_an_inch = 1440;
constexpr double mm = dots_an_inch / 25.4;
constexpr double point = dots_an_inch / 72.0;

constexpr double page_width = 210 * mm;
constexpr double page_height = 297 * mm;
constexpr double side_margin = 18 * mm;
constexpr double text_top = 23 * mm;
constexpr double text_height_a_page = page_height - text_top - 21 * mm;
constexpr double text_width_a_page = page_width - 2 * side_margin;
constexpr double header_line = text_top - 4 * mm;
constexpr double footer_line = text_top + text_height_a_page + 3 * mm;

constexpr double letters = 10 * point;
constexpr double between_columns = 6 * mm;
constexpr double cell_side = 2.2 * mm;
constexpr double cell_above = 0.8 * mm;
constexpr double hairline = 0.2 * mm;
const QColor rule_colour(170, 170, 170);
const QColor shade(238, 238, 238);

DocumentLook page_look(double size = letters) {
    DocumentLook look = paper_look();
    look.font.setPixelSize(qRound(size));
    // Letters that are spaced form no ligatures: whoever searches for "coefficiente" finds it.
    look.font.setLetterSpacing(QFont::AbsoluteSpacing, 0.1);
    return look;
}

using SharedText = std::shared_ptr<TextBox>;

/// A row of a table, ready to be painted.
struct Row {
    std::vector<SharedText> cells;
    double height = 0;
};

/// A table's columns and its header, which its rows share.
struct TableFrame {
    std::vector<double> edges;  ///< of the columns, from the left; one more than columns
    Row header;                 ///< without cells where there is none

    void paint(QPainter& painter, const Row& row, double top, bool shaded) const {
        const QRectF outline(edges.front(), top, edges.back() - edges.front(), row.height);
        if (shaded) painter.fillRect(outline, shade);
        painter.save();
        painter.setPen(QPen(rule_colour, hairline));
        painter.drawRect(outline);
        for (std::size_t i = 1; i + 1 < edges.size(); ++i)
            painter.drawLine(QPointF(edges[i], outline.top()), QPointF(edges[i], outline.bottom()));
        painter.restore();
        for (std::size_t i = 0; i < row.cells.size(); ++i)
            row.cells[i]->paint(painter, {edges[i] + cell_side, top + cell_above});
    }
};

/// Lays out the blocks and paints them page by page.
class PdfPages {
  public:
    explicit PdfPages(const Document& document) : m_document(document) {
        const auto& blocks = document.blocks;
        for (std::size_t i = 0; i < blocks.size(); ++i) {
            std::visit(*this, blocks[i]);
            // What leads to a table or to lines to be copied stays with the first of them.
            if (std::holds_alternative<Paragraph>(blocks[i]) && i + 1 < blocks.size() &&
                (std::holds_alternative<Table>(blocks[i + 1]) ||
                 std::holds_alternative<CodeBlock>(blocks[i + 1])))
                m_flow.back().keep_with_next = true;
        }
    }

    void operator()(const Heading& heading) {
        const auto text = std::make_shared<TextBox>(QString::fromStdString(heading.text),
                                                    heading_format(heading.level, m_look), m_look);
        text->lay_out(text_width_a_page);
        const bool underlined = heading.level == 2;
        const double height = text->height() + (underlined ? 0.8 * mm : 0);
        add({height, heading.level <= 2 ? 6 * mm : 4 * mm, true},
            [text, height, underlined](QPainter& painter, const PlaceOnPages& place) {
                text->paint(painter, {0, place.top});
                if (underlined)
                    painter.fillRect(QRectF(0, place.top + height, text_width_a_page, hairline), rule_colour);
            });
    }

    void operator()(const Paragraph& paragraph) {
        const auto text = std::make_shared<TextBox>(paragraph.pieces, m_look);
        text->lay_out(text_width_a_page);
        add_lines(text, 0, 1.6 * mm);
    }

    void operator()(const FormulaLine& line) {
        constexpr double indent = 4 * mm;
        constexpr double room = text_width_a_page - indent;
        const auto formula = std::make_shared<TextBox>(line.formula, m_look);
        const auto remark = std::make_shared<TextBox>(line.remark, m_remark_look);
        const bool side_by_side =
            formula->natural_width() + between_columns + remark->natural_width() <= room;
        if (formula->natural_width() > room) formula->break_before_equals(room);
        formula->lay_out(room, Qt::AlignLeft, 6 * mm);
        remark->lay_out(room, Qt::AlignRight);
        const double remark_top = side_by_side ? (letters - remark_letters) / 2 : formula->height();
        add({std::max(formula->height(), line.remark.empty() ? 0 : remark_top + remark->height()), 1.2 * mm},
            [formula, remark, remark_top](QPainter& painter, const PlaceOnPages& place) {
                formula->paint(painter, {indent, place.top});
                remark->paint(painter, {indent, place.top + remark_top});
            });
    }

    void operator()(const Table& table) {
        const std::size_t columns = table.columns.size();
        DocumentLook bold = m_look;
        bold.font.setBold(true);
        Row header = row(table.header, bold);
        std::vector<Row> rows;
        std::vector<double> natural(columns);
        const auto widen = [&natural](const Row& row) {
            for (std::size_t i = 0; i < row.cells.size(); ++i)
                natural[i] = std::max(natural[i], row.cells[i]->natural_width() + 2 * cell_side + 1);
        };
        widen(header);
        for (const auto& cells : table.rows) {
            rows.push_back(row(cells, m_look));
            widen(rows.back());
        }
        const auto frame = std::make_shared<TableFrame>();
        frame->edges.push_back(0);
        for (const double width : column_widths(natural, text_width_a_page))
            frame->edges.push_back(frame->edges.back() + width);
        lay_out(header, table.columns, *frame);
        frame->header = std::move(header);

        double gap = 2 * mm;
        const double repeated = frame->header.height;
        if (repeated > 0) {
            add({repeated, gap, true}, [frame](QPainter& painter, const PlaceOnPages& place) {
                frame->paint(painter, frame->header, place.top, true);
            });
            gap = 0;
        }
        for (Row& cells : rows) {
            lay_out(cells, table.columns, *frame);
            const double height = cells.height;
            add({height, gap, false, repeated},
                [frame, repeated, cells = std::move(cells)](QPainter& painter, const PlaceOnPages& place) {
                    if (place.begins_page && repeated > 0)
                        frame->paint(painter, frame->header, place.top - repeated, true);
                    frame->paint(painter, cells, place.top, false);
                });
            gap = 0;
        }
        m_gap_before_next = 2 * mm;
    }

    void operator()(const Figure& figure) {
        const auto caption = std::make_shared<TextBox>(
            QString::fromStdString(figure.caption), text_format(Style::note, m_remark_look), m_remark_look);
        caption->lay_out(text_width_a_page, Qt::AlignHCenter);
        const double caption_height = figure.caption.empty() ? 0 : mm + caption->height();
        const Rect& page = figure.drawing.page;
        const double scale = std::min(
            {1.0, text_width_a_page / page.width, (text_height_a_page - caption_height) / page.height});
        const QSizeF size(page.width * scale, page.height * scale);
        add({size.height() + caption_height, 3 * mm},
            [this, &figure, caption, size](QPainter& painter, const PlaceOnPages& place) {
                const QRectF target(QPointF((text_width_a_page - size.width()) / 2, place.top), size);
                paint_figure(painter, target, figure, m_look);
                painter.setPen(Qt::black);
                caption->paint(painter, {0, target.bottom() + mm});
            });
        m_gap_before_next = 3 * mm;
    }

    void operator()(const CodeBlock& code) {
        constexpr double indent = 3 * mm;
        const auto text =
            std::make_shared<TextBox>(QString::fromStdString(code.text).replace('\n', QChar::LineSeparator),
                                      text_format(Style::code, m_look), m_look);
        text->lay_out(text_width_a_page - indent);
        add_lines(text, indent, 2 * mm, [](QPainter& painter, double top, double height) {
            painter.fillRect(QRectF(0, top, 0.8 * mm, height), rule_colour);
        });
    }

    /// @param scale  dots of the device a twip
    /// @return false if the device does not take it
    bool paint(QPagedPaintDevice& device, double scale = 1) const {
        const std::vector<PlaceOnPages> places = paginate(m_flow, text_height_a_page);
        const int pages = places.empty() ? 1 : places.back().page + 1;
        QPainter painter;
        if (!painter.begin(&device)) return false;
        painter.scale(scale, scale);
        std::size_t i = 0;
        for (int page = 0; page < pages; ++page) {
            if (page > 0 && !device.newPage()) return false;
            paint_frame(painter, page, pages);
            painter.save();
            painter.translate(side_margin, text_top);
            painter.setPen(Qt::black);
            for (; i < places.size() && places[i].page == page; ++i)
                m_painters[i](painter, places[i]);
            painter.restore();
        }
        return painter.end();
    }

  private:
    using ItemPainter = std::function<void(QPainter&, const PlaceOnPages&)>;

    static constexpr double remark_letters = 0.9 * letters;

    void add(FlowItem item, ItemPainter painter) {
        item.gap = std::max(item.gap, std::exchange(m_gap_before_next, 0));
        m_flow.push_back(item);
        m_painters.push_back(std::move(painter));
    }

    /// A text that may go on over pages, without a line of its own at the end of one or at the top of the
    /// next.
    void add_lines(const SharedText& text, double indent, double gap,
                   const std::function<void(QPainter&, double top, double height)>& ornament = {}) {
        const int lines = text->lines();
        for (int i = 0; i < lines; ++i) {
            const double height = text->height_of_line(i);
            const bool keep = i + 1 < lines && (i == 0 || i + 2 == lines);
            add({height, i == 0 ? gap : 0, keep},
                [text, indent, ornament, i, height](QPainter& painter, const PlaceOnPages& place) {
                    if (ornament) ornament(painter, place.top, height);
                    text->paint_line(painter, i, {indent, place.top});
                });
        }
    }

    static Row row(const std::vector<Pieces>& cells, const DocumentLook& look) {
        Row row;
        for (const Pieces& pieces : cells)
            row.cells.push_back(std::make_shared<TextBox>(pieces, look));
        return row;
    }

    static void lay_out(Row& row, const std::vector<ColumnAlign>& columns, const TableFrame& frame) {
        for (std::size_t i = 0; i < row.cells.size(); ++i) {
            row.cells[i]->lay_out(frame.edges[i + 1] - frame.edges[i] - 2 * cell_side,
                                  columns[i] == ColumnAlign::right ? Qt::AlignRight : Qt::AlignLeft);
            row.height = std::max(row.height, row.cells[i]->height() + 2 * cell_above);
        }
    }

    /// Header and footer.
    void paint_frame(QPainter& painter, int page, int pages) const {
        QFont font = m_look.font;
        font.setPixelSize(qRound(8.5 * point));
        const QFontMetricsF metrics(font, painter.device());
        // In smaller letters where it is long, and cut where it is too long for these.
        const auto write_line = [&](QPointF at, const std::string& line, double width) {
            const QString text = QString::fromStdString(line);
            QFont fitted = font;
            const double part = std::min(1.0, width / metrics.horizontalAdvance(text));
            fitted.setPixelSize(static_cast<int>(std::max(7 * point, part * 8.5 * point)));
            painter.setFont(fitted);
            const QFontMetricsF fitted_metrics(fitted, painter.device());
            painter.drawText(at, fitted_metrics.elidedText(text, Qt::ElideMiddle, width));
        };
        painter.setPen(QColor(85, 85, 85));
        const QString number = QStringLiteral("pagina %1 di %2").arg(page + 1).arg(pages);
        const double room = text_width_a_page - metrics.horizontalAdvance(number) - between_columns;
        const double footer = footer_line + 1.2 * mm + metrics.ascent();
        write_line({side_margin, header_line - 1.2 * mm - metrics.descent()}, m_document.page_header,
                   text_width_a_page);
        write_line({side_margin, footer}, m_document.page_footer, room);
        painter.setFont(font);
        painter.drawText(QPointF(page_width - side_margin - metrics.horizontalAdvance(number), footer),
                         number);
        for (const double line : {header_line, footer_line})
            painter.fillRect(QRectF(side_margin, line, text_width_a_page, hairline), rule_colour);
    }

    const Document& m_document;
    DocumentLook m_look = page_look();
    DocumentLook m_remark_look = page_look(remark_letters);
    std::vector<FlowItem> m_flow;
    std::vector<ItemPainter> m_painters;  // of the items
    double m_gap_before_next = 0;
};

/// Puts the given date, or none, where Qt writes that of the clock. The length stays: the file's own table
/// tells where its parts stand.
void fix_date(QByteArray& pdf) {
    const QByteArray entry = "/CreationDate (";
    const qsizetype begin = pdf.lastIndexOf(entry);
    const qsizetype end = begin < 0 ? -1 : pdf.indexOf(')', begin);
    if (end < 0) return;
    bool given = false;
    const qint64 seconds = qgetenv("SOURCE_DATE_EPOCH").toLongLong(&given);
    const QByteArray date = given ? entry +
                                        QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC)
                                            .toString("'D:'yyyyMMddHHmmss'Z'")
                                            .toLatin1() +
                                        ")"
                                  : QByteArray();
    const qsizetype length = end + 1 - begin;
    if (date.size() <= length) pdf.replace(begin, length, date.leftJustified(length));
}

}  // namespace

QByteArray to_pdf(const Document& document) {
    const SameOrder same_order;
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(dots_an_inch);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins({});
    writer.setTitle(QString::fromStdString(document.title));
    writer.setCreator(QStringLiteral("Coltre"));
    if (!PdfPages(document).paint(writer)) return {};
    fix_date(content);
    return content;
}

bool print(const Document& document, QPagedPaintDevice& printer) {
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageMargins({});
    const double scale = std::min(printer.width() / page_width, printer.height() / page_height);
    return PdfPages(document).paint(printer, scale);
}

}  // namespace coltre
