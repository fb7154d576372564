#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "startup/program.h"
#include "ui/calculation_tab.h"
#include "ui/user_dialogs.h"

namespace coltre {

namespace Ui {
class casipart;
}

/// The window of the special cases: change of roof level, wall, snow guard, a page each. It is deleted when
/// it is closed, so that each opening starts from the designed entries.
class casipart : public QWidget {
    Q_OBJECT

  public:
    /// Program and dialogs must live as long as the window.
    /// @param site              the main window's inputs as they are at the moment of the call
    /// @param show_ground_load  has the main window show the qsk cell, in which this window leaves its own
    ///                          ground load; called whenever results are shown
    explicit casipart(Program& program, UserDialogs& dialogs, std::function<Inputs()> site,
                      std::function<void()> show_ground_load, QWidget* parent = nullptr);
    ~casipart() override;

    /// The sketch of the open page for what is typed here and chosen in the main window now.
    void follow_inputs();

    [[nodiscard]] CalculationTab& open_tab() const;

    /// What a click on Calcola would calculate now.
    [[nodiscard]] Fields fields() const;
    /// Opens the page of a calculation and fills it.
    void take(const Fields& fields);

  signals:
    /// A calculation ended.
    void calculated(const Fields& fields, const Outcome& outcome);

    /// Another page is open, or something else is typed or chosen.
    void changed();
    void came_to_front();

  protected:
    void changeEvent(QEvent* event) override;
    /// Enter calculates, wherever the focus is but on a button.
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void page_chosen();
    void report_switched();
    void calculate_clicked();

    [[nodiscard]] Inputs inputs(const CalculationTab& tab) const;

    Program& m_program;
    UserDialogs& m_dialogs;
    std::function<Inputs()> m_site;
    std::function<void()> m_show_ground_load;
    std::unique_ptr<Ui::casipart> m_ui;
    std::vector<std::unique_ptr<CalculationTab>> m_tabs;
};

}  // namespace coltre
