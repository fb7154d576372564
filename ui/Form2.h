#pragma once

#include <QDialog>
#include <memory>

#include "engine/program_cells.h"

namespace coltre {

namespace Ui {
class Form2;
}

/// Asks for one number, the working value cell.
class Form2 : public QDialog {
    Q_OBJECT

  public:
    explicit Form2(ProgramCells& cells, QWidget* parent = nullptr);
    ~Form2() override;

  private:
    void ok_clicked();

    ProgramCells& m_cells;
    std::unique_ptr<Ui::Form2> m_ui;
};

}  // namespace coltre
