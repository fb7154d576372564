#pragma once

#include <QDialog>
#include <memory>

#include "ui/window_values.h"

namespace coltre {

namespace Ui {
class Form2;
}

/// Asks for one number, the working value of the windows.
class Form2 : public QDialog {
    Q_OBJECT

  public:
    explicit Form2(WindowValues& values, QWidget* parent = nullptr);
    ~Form2() override;

  private:
    void ok_clicked();

    WindowValues& m_values;
    std::unique_ptr<Ui::Form2> m_ui;
};

}  // namespace coltre
