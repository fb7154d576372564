#include "ui/vector_picture.h"

#include <QFontInfo>
#include <QPainter>
#include <QtMath>
#include <utility>

#include "ui/sketch_painter.h"

namespace coltre {

VectorPicture::VectorPicture(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void VectorPicture::set_drawing(Drawing drawing) {
    m_drawing = std::move(drawing);
    updateGeometry();
    update();
}

// With the letters of the window around it.
QSize VectorPicture::sizeHint() const {
    const double scale = QFontInfo(font()).pixelSize() / text_height;
    return {qCeil(m_drawing.page.width * scale), qCeil(m_drawing.page.height * scale)};
}

void VectorPicture::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    SketchPainter(m_drawing, QRectF(rect()), {palette(), font()}).paint(painter);
}

}  // namespace coltre
