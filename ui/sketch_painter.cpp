#include "ui/sketch_painter.h"

#include <QFontMetricsF>
#include <QList>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <utility>

namespace coltre {

namespace {

constexpr double natural_scale = 96.0 / 1440;  // pixels a twip where the sketch has its printed size

QColor blend(const QColor& over, const QColor& under, double part) {
    const auto mix = [part](float a, float b) { return static_cast<float>(a * part + b * (1 - part)); };
    return QColor::fromRgbF(mix(over.redF(), under.redF()), mix(over.greenF(), under.greenF()),
                            mix(over.blueF(), under.blueF()));
}

QColor colour(Role role, const QPalette& palette) {
    const QColor ink = palette.color(QPalette::Text);
    const QColor paper = palette.color(QPalette::Base);
    const bool dark = paper.lightness() < 128;
    const QColor snow = dark ? QColor(120, 180, 245) : QColor(20, 95, 175);
    const QColor force = dark ? QColor(255, 140, 105) : QColor(185, 50, 15);
    switch (role) {
        case Role::roof:
        case Role::wall:
        case Role::break_mark:
            return ink;
        case Role::hatch:
        case Role::axis:
            return blend(ink, paper, 0.5);
        case Role::load_area:
        case Role::snow:
            return blend(snow, paper, 0.2);
        case Role::load_line:
        case Role::load_arrow:
        case Role::drift_line:
            return snow;
        case Role::point_load:
            return force;
        case Role::dimension:
        case Role::drift_length:
            return blend(ink, paper, 0.85);
        case Role::caption:
            return blend(ink, paper, 0.7);
    }
    return ink;
}

/// Width of the pen in pixels where the sketch has its printed size; 0: no outline.
double pen_width(Role role) {
    switch (role) {
        case Role::roof:
        case Role::wall:
        case Role::point_load:
            return 1.6;
        case Role::drift_line:
            return 1.5;
        case Role::load_line:
            return 1.2;
        case Role::load_area:
        case Role::snow:
            return 0;
        case Role::hatch:
        case Role::axis:
            return 0.7;
        default:
            return 0.9;
    }
}

}  // namespace

SketchPainter::SketchPainter(const Drawing& drawing, const QRectF& target, SketchStyle style)
    : m_drawing(drawing), m_style(std::move(style)) {
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
    return text_font().pixelSize() * 0.3;
}

QPen SketchPainter::pen(Role role) const {
    QPen pen(colour(role, m_style.palette), pen_width(role) * m_small / natural_scale);
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::RoundJoin);
    if (role == Role::axis) pen.setDashPattern({9, 4, 2, 4});
    return pen;
}

void SketchPainter::paint_shape(QPainter& painter, const Shape& shape) const {
    QPolygonF points;
    for (const Point p : shape.points)
        points << to_pixels(p);
    if (shape.role == Role::break_mark && points.size() > 2) {
        // The line that is broken off stops at the zigzag.
        QPen gap = pen(shape.role);
        gap.setColor(m_style.palette.color(QPalette::Base));
        gap.setWidthF(3 * gap.widthF());
        painter.setPen(gap);
        painter.drawLine(points[1], points[points.size() - 2]);
    }
    const bool filled = shape.role == Role::load_area || shape.role == Role::snow;
    painter.setPen(filled ? QPen(Qt::NoPen) : pen(shape.role));
    painter.setBrush(filled ? QBrush(colour(shape.role, m_style.palette)) : QBrush(Qt::NoBrush));
    if (shape.closed) {
        painter.drawPolygon(points);
    } else {
        painter.drawPolyline(points);
    }
}

void SketchPainter::paint_arrow(QPainter& painter, const Arrow& arrow) const {
    const double head = (arrow.role == Role::point_load ? 130 : 85) * m_small / m_scale;
    const double length = std::hypot(arrow.to.x - arrow.from.x, arrow.to.y - arrow.from.y);
    if (length <= 0) return;
    const Point along{(arrow.to.x - arrow.from.x) / length, (arrow.to.y - arrow.from.y) / length};
    const Point neck{arrow.to.x - along.x * head, arrow.to.y - along.y * head};
    const double half = head / 3;
    painter.setPen(pen(arrow.role));
    painter.drawLine(to_pixels(arrow.from), to_pixels(neck));
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour(arrow.role, m_style.palette));
    painter.drawPolygon(QPolygonF{to_pixels(arrow.to),
                                  to_pixels(Point{neck.x - along.y * half, neck.y + along.x * half}),
                                  to_pixels(Point{neck.x + along.y * half, neck.y - along.x * half})});
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
    painter.setPen(colour(text.role, m_style.palette));
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
    painter.setPen(colour(Role::dimension, m_style.palette));
    painter.drawText(QRectF(number.left() - gap() - far, number.top(), far, number.height()),
                     upright | Qt::AlignRight, QString::fromStdString(slot.before));
    painter.drawText(QRectF(number.right() + gap(), number.top(), far, number.height()),
                     upright | Qt::AlignLeft, QString::fromStdString(slot.after));
}

void SketchPainter::paint_number(QPainter& painter, const LabelSlot& slot, const QString& number) const {
    const QFontMetricsF metrics(text_font(), painter.device());
    const QRectF place = number_rect(slot, {metrics.horizontalAdvance(number), metrics.height()});
    paint_slot(painter, slot, place);
    painter.setPen(m_style.palette.color(QPalette::Text));
    painter.drawText(place, static_cast<int>(Qt::AlignCenter) | Qt::TextDontClip, number);
}

}  // namespace coltre
