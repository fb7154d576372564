#include "ui/sketch_painter.h"

#include <QFontMetricsF>
#include <QList>
#include <QPolygonF>
#include <algorithm>
#include <utility>

namespace coltre {

namespace {

Colour colour_of(const QColor& colour) {
    return {colour.redF(), colour.greenF(), colour.blueF()};
}

QColor qt(const Colour& colour) {
    return QColor::fromRgbF(static_cast<float>(colour.red), static_cast<float>(colour.green),
                            static_cast<float>(colour.blue));
}

}  // namespace

SketchPainter::SketchPainter(const Drawing& drawing, const QRectF& target, SketchStyle style)
    : m_drawing(drawing),
      m_style(std::move(style)),
      m_inks{colour_of(m_style.palette.color(QPalette::Text)),
             colour_of(m_style.palette.color(QPalette::Base))} {
    const Rect& page = drawing.page;
    m_scale = std::max(0.0, std::min(target.width() / page.width, target.height() / page.height));
    m_small =
        m_style.largest_letters > 0 ? std::min(m_scale, m_style.largest_letters / text_height) : m_scale;
    m_origin = target.center() - m_scale * QPointF(page.x + page.width / 2, page.y + page.height / 2);
}

void SketchPainter::paint(QPainter& painter) const {
    if (m_scale <= 0) return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Shape& shape : m_drawing.shapes)
        paint_shape(painter, shape);
    for (const Arrow& arrow : m_drawing.arrows)
        paint_arrow(painter, arrow);
    for (const Text& text : m_drawing.texts)
        paint_text(painter, text);
    painter.restore();
}

QFont SketchPainter::text_font() const {
    QFont font = m_style.font;
    font.setPixelSize(std::max(1, static_cast<int>(text_height * m_small)));
    return font;
}

QRectF SketchPainter::to_pixels(const Rect& rect) const {
    return {to_pixels(Point{rect.x, rect.y}), QSizeF(rect.width, rect.height) * m_scale};
}

QPointF SketchPainter::to_pixels(Point p) const {
    return m_origin + m_scale * QPointF(p.x, p.y);
}

double SketchPainter::gap() const {
    return text_font().pixelSize() * symbol_gap;
}

QPen SketchPainter::pen(Role role) const {
    QPen pen(qt(colour(role, m_inks)), line_width(role) * m_small);
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::RoundJoin);
    if (role == Role::axis) pen.setDashPattern({axis_dashes.begin(), axis_dashes.end()});
    return pen;
}

void SketchPainter::paint_shape(QPainter& painter, const Shape& shape) const {
    QPolygonF points;
    for (const Point p : shape.points)
        points << to_pixels(p);
    if (shape.role == Role::break_mark) {
        QPen gap = pen(shape.role);
        gap.setColor(qt(m_inks.paper));
        gap.setWidthF(break_gap * gap.widthF());
        painter.setPen(gap);
        painter.drawLine(points[1], points[points.size() - 2]);
    }
    const bool filled = is_filled(shape.role);
    painter.setPen(filled ? QPen(Qt::NoPen) : pen(shape.role));
    painter.setBrush(filled ? QBrush(qt(colour(shape.role, m_inks))) : QBrush(Qt::NoBrush));
    if (shape.closed) {
        painter.drawPolygon(points);
    } else {
        painter.drawPolyline(points);
    }
}

void SketchPainter::paint_arrow(QPainter& painter, const Arrow& arrow) const {
    QPolygonF head;
    for (const Point p : arrow_head(arrow, m_small / m_scale))
        head << to_pixels(p);
    painter.setPen(pen(arrow.role));
    painter.drawLine(to_pixels(arrow.from), (head[1] + head[2]) / 2);
    painter.setPen(Qt::NoPen);
    painter.setBrush(qt(colour(arrow.role, m_inks)));
    painter.drawPolygon(head);
}

void SketchPainter::paint_text(QPainter& painter, const Text& text) const {
    const QRectF box = to_pixels(text.box);
    const QString words = QString::fromStdString(text.text);
    QFont font = text_font();
    const double width = QFontMetricsF(font).horizontalAdvance(words);
    if (width > box.width()) {
        font.setPixelSize(std::max(1, static_cast<int>(font.pixelSize() * box.width() / width)));
    }
    const Qt::Alignment across = text.align == Align::left    ? Qt::AlignLeft
                                 : text.align == Align::right ? Qt::AlignRight
                                                              : Qt::AlignHCenter;
    painter.setFont(font);
    painter.setPen(qt(colour(text.role, m_inks)));
    painter.drawText(box, static_cast<int>(across | Qt::AlignVCenter) | Qt::TextDontClip, words);
}

QRectF SketchPainter::number_rect(const LabelSlot& slot, const QSizeF& number) const {
    const QFontMetricsF metrics(text_font());
    const auto room_beside = [&](const std::string& text) {
        return text.empty() ? 0 : metrics.horizontalAdvance(QString::fromStdString(text)) + gap();
    };
    const double before = room_beside(slot.before);
    const double after = room_beside(slot.after);
    const QRectF area = to_pixels(slot.area);
    const double spare = area.width() - (before + number.width() + after);
    const double left = slot.align == Align::left ? 0 : slot.align == Align::right ? spare : spare / 2;
    return {{area.left() + left + before, area.center().y() - number.height() / 2}, number};
}

void SketchPainter::paint_slot(QPainter& painter, const LabelSlot& slot, const QRectF& number) const {
    constexpr double far = 1000;  // the texts end at the number and at nothing else
    const int upright = static_cast<int>(Qt::AlignVCenter) | Qt::TextDontClip;
    painter.setFont(text_font());
    painter.setPen(qt(symbol_colour(m_drawing, m_inks)));
    painter.drawText(QRectF(number.left() - gap() - far, number.top(), far, number.height()),
                     upright | Qt::AlignRight, QString::fromStdString(slot.before));
    painter.drawText(QRectF(number.right() + gap(), number.top(), far, number.height()),
                     upright | Qt::AlignLeft, QString::fromStdString(slot.after));
}

QColor SketchPainter::number_colour() const {
    return qt(coltre::number_colour(m_drawing, m_inks));
}

void SketchPainter::paint_number(QPainter& painter, const LabelSlot& slot, const QString& number) const {
    const QFontMetricsF metrics(text_font(), painter.device());
    const QRectF place = number_rect(slot, {metrics.horizontalAdvance(number), metrics.height()});
    paint_slot(painter, slot, place);
    painter.setPen(number_colour());
    painter.drawText(place, static_cast<int>(Qt::AlignCenter) | Qt::TextDontClip, number);
}

void SketchPainter::paint_numbers(QPainter& painter, const LabelTexts& labels) const {
    for (const LabelSlot& slot : m_drawing.label_slots) {
        const auto label = labels.find(slot.name);
        if (!slot.visible || label == labels.end()) continue;
        const QString number = QString::fromStdString(label->second).trimmed();
        if (!number.isEmpty()) paint_number(painter, slot, number);
    }
}

}  // namespace coltre
