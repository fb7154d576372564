#include "ui/vector_picture.h"

#include <QPainter>

namespace coltre {

VectorPicture::VectorPicture(QWidget* parent) : QWidget(parent) {
    m_renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void VectorPicture::load(const QString& file) {
    m_renderer.load(file);
    updateGeometry();
}

QSize VectorPicture::sizeHint() const {
    return m_renderer.defaultSize();
}

void VectorPicture::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    m_renderer.render(&painter);
}

}  // namespace coltre
