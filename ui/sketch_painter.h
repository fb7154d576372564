#pragma once

#include <QFont>
#include <QPainter>
#include <QPalette>
#include <QRectF>

#include "drawings/drawing.h"
#include "drawings/look.h"

namespace coltre {

/// How a sketch is painted.
struct SketchStyle {
    QPalette palette;  ///< text on base; the other colours are derived, light or dark alike
    QFont font;
    /// Letters, lines and arrowheads grow with the picture up to this letter size, pixels; 0: without limit.
    double largest_letters = 0;
};

/// Paints a drawing into a rectangle, as large as fits, in the middle. Only lines, areas and texts: SVG and
/// PDF stay vector pictures.
class SketchPainter {
  public:
    /// @param drawing  must outlive the painter
    SketchPainter(const Drawing& drawing, const QRectF& target, SketchStyle style);

    /// Paints everything but the label slots.
    void paint(QPainter& painter) const;

    /// Paints the texts beside the number of a slot.
    /// @param number  where the number stands, as number_rect() gave it
    void paint_slot(QPainter& painter, const LabelSlot& slot, const QRectF& number) const;

    /// Paints a number in its slot, with the texts beside it.
    void paint_number(QPainter& painter, const LabelSlot& slot, const QString& number) const;

    /// Paints the numbers of the slots that are shown and have one: without it the texts beside it say
    /// nothing.
    void paint_numbers(QPainter& painter, const LabelTexts& labels) const;

    /// The colour of the numbers.
    [[nodiscard]] QColor number_colour() const;

    /// Where a number of this size stands, so that it is aligned in the slot together with its texts.
    [[nodiscard]] QRectF number_rect(const LabelSlot& slot, const QSizeF& number) const;

    /// The font of the drawing's texts at this size.
    [[nodiscard]] QFont text_font() const;

    [[nodiscard]] QRectF to_pixels(const Rect& rect) const;

  private:
    [[nodiscard]] QPointF to_pixels(Point p) const;
    void paint_shape(QPainter& painter, const Shape& shape) const;
    void paint_arrow(QPainter& painter, const Arrow& arrow) const;
    void paint_text(QPainter& painter, const Text& text) const;
    [[nodiscard]] QPen pen(Role role) const;
    [[nodiscard]] double gap() const;

    const Drawing& m_drawing;
    SketchStyle m_style;
    Inks m_inks;
    double m_scale;  // pixels a twip
    double m_small;  // the same for what the largest letters limit
    QPointF m_origin;
};

}  // namespace coltre
