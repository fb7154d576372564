#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "calculate/Calcola2.h"
#include "startup/program.h"
#include "ui/site_fields.h"
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
    /// @param site_fields       the main window's fields as they are at the moment of the call
    /// @param show_ground_load  has the main window show the qsk cell, in which this window leaves its own
    ///                          ground load; called whenever results are shown
    explicit casipart(Program& program, UserDialogs& dialogs, std::function<SiteFields()> site_fields,
                      std::function<void()> show_ground_load, QWidget* parent = nullptr);
    ~casipart() override;

    /// The ground load is no longer that of the numbers shown: the sketches of the cases that depend on it
    /// say so.
    void mark_ground_load_as_old();

  protected:
    /// Enter calculates, wherever the focus is but on a button.
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void page_chosen();
    void report_switched();
    void calculate_clicked();

    [[nodiscard]] SpecialCasesFields fields() const;
    void draw(SpecialCase page, bool with_results);
    void show_results(SpecialCase page);

    Program& m_program;
    UserDialogs& m_dialogs;
    std::function<SiteFields()> m_site_fields;
    std::function<void()> m_show_ground_load;
    std::unique_ptr<Ui::casipart> m_ui;
};

}  // namespace coltre
