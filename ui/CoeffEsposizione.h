#pragma once

#include <QDialog>
#include <memory>

namespace coltre {

namespace Ui {
class CoeffEsposizione;
}

/// The table of the exposure coefficient CE. Shown modally with exec().
class CoeffEsposizione : public QDialog {
    Q_OBJECT

  public:
    explicit CoeffEsposizione(QWidget* parent = nullptr);
    ~CoeffEsposizione() override;

  private:
    std::unique_ptr<Ui::CoeffEsposizione> m_ui;
};

}  // namespace coltre
