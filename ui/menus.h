#pragma once

#include <QObject>
#include <QPointer>
#include <QUrl>
#include <functional>
#include <string>

#include "startup/program.h"
#include "ui/calculation_tab.h"
#include "ui/last_calculation.h"
#include "ui/user_dialogs.h"
#include "ui/worked_cases_window.h"

class QPrinter;
class QWidget;

namespace coltre {

/// The menu bar of both windows: all that the program does besides its windows' own controls. No letter of it
/// is underlined, since the controls take all of them: F10 leads into the menus, and entries have keys of
/// their own.
class Menus : public QObject {
    Q_OBJECT

  public:
    /// @param main_window  closing it ends the program; it and the others live as long as the menus
    Menus(QWidget& main_window, const Program& program, LastCalculation& last_calculation,
          UserDialogs& dialogs);

    /// Puts the menu bar above the controls of a window whose contents scroll, and makes the window that much
    /// higher.
    /// @param open_tab  the calculation that the window shows
    void add_to(QWidget& window, const std::function<CalculationTab&()>& open_tab);

    /// Keeps a report for "Apri l'ultima relazione".
    /// @param suite_path  empty if none was written
    void remember_report(const std::string& suite_path);

    /// How a file is opened: by the program that the desktop has for it, unless replaced.
    /// @return false if there is none
    std::function<bool(const QUrl& file)> open_file;
    /// How the user chooses a printer: by the dialog, unless replaced.
    /// @return false if nothing is to be printed
    std::function<bool(QPrinter& printer)> ask_printer;

  signals:
    void open_job(const CalculationTab& open_tab);
    void save_job(const CalculationTab& open_tab);
    void find_place(const CalculationTab& open_tab);
    void compare_sites(const CalculationTab& open_tab);
    void show_what_if(const CalculationTab& open_tab);

  private:
    struct Entry {
        const char* menu;  ///< entries of one menu follow each other
        const char* text;
        const char* keys;  ///< empty: none
        void (Menus::*chosen)(const CalculationTab& open_tab);
    };
    static const Entry entries[];

    // What the entries do.
    void write_illustrated_report(const CalculationTab&);
    void print_report(const CalculationTab&);
    void show_steps(const CalculationTab&);
    void check_altitudes(const CalculationTab&);
    void show_worked_cases(const CalculationTab&);
    void open_last_report(const CalculationTab&);
    void end_program(const CalculationTab&);
    void copy_results(const CalculationTab& open_tab);
    void copy_sketch(const CalculationTab& open_tab);
    void open_manual(const CalculationTab& open_tab);
    void show_about(const CalculationTab&);

    void open(const QUrl& file);
    void show_error(const QString& text);

    QWidget& m_main_window;
    const Program& m_program;
    LastCalculation& m_last_calculation;
    UserDialogs& m_dialogs;
    std::string m_last_report;
    QPointer<WorkedCasesWindow> m_worked_cases;
};

}  // namespace coltre
