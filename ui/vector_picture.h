#pragma once

#include <QSvgRenderer>
#include <QWidget>

namespace coltre {

/// Shows an SVG picture at its own size, sharp at any scaling.
class VectorPicture : public QWidget {
    Q_OBJECT

  public:
    explicit VectorPicture(QWidget* parent = nullptr);

    void load(const QString& file);
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QSvgRenderer m_renderer;
};

}  // namespace coltre
