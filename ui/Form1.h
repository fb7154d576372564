#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <memory>
#include <string_view>
#include <vector>

#include "calculate/Calcola.h"
#include "startup/program.h"
#include "ui/hints.h"
#include "ui/number_field.h"
#include "ui/site_fields.h"
#include "ui/sketches/sketch_widget.h"
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

    /// What the special cases read of this window.
    [[nodiscard]] SiteFields site_fields() const;

    /// `caricosuolo` shows the qsk cell.
    void show_ground_load();

  signals:
    /// The site, a coefficient or the return period is another one: numbers shown so far belong to the old
    /// one.
    void site_changed();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void connect_controls();
    void set_up_sketches();
    void set_up_hints();

    /// The fields and the selected tab as they are now.
    [[nodiscard]] MainWindowFields fields() const;

    /// A tab with its entries and its sketch.
    struct RoofTab {
        RoofFamily family;
        NumberField* first;
        NumberField* second;  ///< null for one pitch
        SketchWidget* sketch;
        const char* picture;  ///< suggested name of a saved sketch
    };
    /// The factor in force shows over the return period: at the start it is 1, which the 50 years do not
    /// tell.
    void show_return_period_factor();
    /// The sketch follows the entries; its loads are those of the cells, or where these belong to other
    /// entries, follow the shape coefficients.
    void draw(const RoofTab& tab, const ProgramCells* loads);

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
    std::vector<RoofTab> m_tabs;  // by family
    QTimer m_Timer1{this};
    std::unique_ptr<Hints> m_hints;
    QPointer<QWidget> m_return_period;  // one at a time
    QPointer<QWidget> m_special_cases;
};

}  // namespace coltre
