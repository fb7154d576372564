#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <memory>
#include <string_view>
#include <vector>

#include "requests/job.h"
#include "site/municipalities.h"
#include "startup/program.h"
#include "ui/calculation_tab.h"
#include "ui/casipart.h"
#include "ui/hints.h"
#include "ui/job_file.h"
#include "ui/last_calculation.h"
#include "ui/menus.h"
#include "ui/side_windows.h"
#include "ui/user_dialogs.h"

namespace coltre {

namespace Ui {
class Form1;
}

/// The main window: site, coefficients, roof and report in, loads out. Its handlers read the fields, call the
/// core and show the cells.
class Form1 : public QWidget {
    Q_OBJECT

  public:
    /// @param program  outlives the window, and so do the dialogs
    Form1(Program& program, UserDialogs& dialogs, QWidget* parent = nullptr);
    ~Form1() override;

    /// Everything that is set before the user sees the window, in order: mode and directories, caption, lists
    /// and their selections, start values.
    /// @param command_line   the arguments of the process as one text
    /// @param own_directory  the directory that holds the program
    /// @return false if the program was ended
    bool load(std::string_view command_line, std::string_view own_directory);

    /// The site, the coefficients and the return period, which both windows calculate with.
    [[nodiscard]] Inputs site() const;

    /// `caricosuolo` shows the qsk cell.
    /// @param of  what it was calculated from
    void show_ground_load(const Inputs& of);

  signals:
    /// The site, a coefficient or the return period is another one: numbers shown so far belong to the old
    /// one.
    void site_changed();

  protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void connect_controls();
    /// @param ground  of the window, under its controls
    void set_up_hints(QWidget& ground);

    [[nodiscard]] CalculationTab& open_tab() const;
    [[nodiscard]] Inputs inputs(const CalculationTab& tab) const;
    /// Of the calculation on show: that of the window which was in front last.
    [[nodiscard]] Inputs shown_inputs() const;
    /// The main window is in front now, or that of the special cases.
    void in_front(bool special_cases);
    /// The sketch of the open tab, and the ground load, for what is typed and chosen now.
    void follow_inputs();

    /// The factor in force stands under the return period: at the start it is 1, which the 50 years do not
    /// tell.
    void show_return_period_factor();

    /// What a click on Calcola would calculate now.
    [[nodiscard]] Fields fields() const;
    /// These fields at the site, and with the return period, that are chosen now.
    [[nodiscard]] Subject subject(const Fields& fields) const;
    /// Keeps a calculation of either window for its documents.
    void keep(const Fields& fields, const Outcome& outcome);

    void show_notices(const AltitudeNotices& notices);

    /// Chooses region, province and municipality by their events; without a province none is chosen.
    /// @param province  in the spelling of the table
    void choose_site(const std::string& province, const std::string& municipality);
    void set_return_period(const std::string& confirmed);

    void open_job();
    void save_job(const CalculationTab& tab);
    /// What saving the window of this calculation writes.
    [[nodiscard]] std::string job_of(Kind kind) const;
    /// Fills the windows, by the events of their fields.
    void take(const Job& job);

    // One handler a control and event.
    void region_chosen(int index);
    void province_chosen();
    void municipality_chosen();
    void report_switched();
    void return_period_clicked();
    void exposure_table_clicked();
    void special_cases_clicked();
    void calculate_clicked();
    void information_clicked();

    Program& m_program;
    UserDialogs& m_dialogs;
    std::unique_ptr<Ui::Form1> m_ui;
    std::vector<std::unique_ptr<CalculationTab>> m_tabs;
    LastCalculation m_last_calculation{*this, m_dialogs};
    Menus m_menus{*this, m_program, m_last_calculation, m_dialogs};
    SideWindows m_side_windows{*this, m_program, m_dialogs, [this] { return shown_inputs(); }};
    bool m_special_cases_in_front = false;
    JobFile m_job{m_dialogs, this};
    std::string m_listed_altitude;           // of the municipality that was chosen last
    std::optional<Inputs> m_ground_load_of;  // nothing before it is shown for the first time
    QTimer m_Timer1{this};
    std::unique_ptr<Hints> m_hints;
    QPointer<QWidget> m_return_period;  // one at a time
    QPointer<casipart> m_special_cases;
};

}  // namespace coltre
