#pragma once

#include <QDialog>
#include <memory>

#include "engine/program_cells.h"
#include "ui/user_dialogs.h"

namespace coltre {

namespace Ui {
class PeriododiRitorno;
}

/// What is said of the factor in force: "coefficiente 0.8056", or "coefficiente 1, non confermato".
QString return_period_factor_line(const ProgramCells& cells);

/// The dialog of the return period. It is not modal, and gone when it is closed.
class PeriododiRitorno : public QDialog {
    Q_OBJECT

  public:
    /// @param in_force  what the text box shows first
    PeriododiRitorno(ProgramCells& cells, UserDialogs& dialogs, const QString& in_force,
                     QWidget* parent = nullptr);
    ~PeriododiRitorno() override;

  signals:
    /// The user confirmed a return period that is in force now.
    void confirmed(const QString& OutputPerRit);

  private:
    void confirm_clicked();
    /// Says which factor the typed return period gives.
    void show_factor();

    ProgramCells& m_cells;
    UserDialogs& m_dialogs;
    std::unique_ptr<Ui::PeriododiRitorno> m_ui;
};

}  // namespace coltre
