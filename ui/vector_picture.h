#pragma once

#include <QWidget>

#include "drawings/drawing.h"

namespace coltre {

/// Shows a drawing with letters of the size of those around it, in the colours of the palette, sharp at any
/// scaling.
class VectorPicture : public QWidget {
    Q_OBJECT

  public:
    explicit VectorPicture(QWidget* parent = nullptr);

    void set_drawing(Drawing drawing);
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Drawing m_drawing;
};

}  // namespace coltre
