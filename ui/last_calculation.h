#pragma once

#include <QPointer>
#include <QWidget>
#include <optional>

#include "document/illustrated_report.h"
#include "ui/report_dialog.h"
#include "ui/steps_window.h"
#include "ui/user_dialogs.h"

namespace coltre {

/// What was calculated last, in either window, and its documents: the window of its steps and the illustrated
/// report.
class LastCalculation {
  public:
    /// @param main_window  of the program; it and the dialogs live as long as this
    LastCalculation(QWidget& main_window, UserDialogs& dialogs);

    /// Keeps a calculation; the window of the steps follows it if it is open.
    void keep(Subject subject);

    /// "Passaggi del calcolo"
    void show_steps();

    /// "Relazione illustrata"
    /// @param parent    the window that asks   @param job_name  offered as the name of the work
    void write_report(QWidget* parent, const std::string& job_name);

    /// The illustrated report with the heading and the layout of its dialog; nothing before the first
    /// calculation.
    [[nodiscard]] std::optional<Document> report() const;

  private:
    QWidget& m_main_window;
    UserDialogs& m_dialogs;
    std::optional<Subject> m_subject;
    std::optional<double> m_last_roof_load;  // kN/m2, greatest of the last roof
    ReportChoices m_choices;                 // what was typed in the heading stays for the run
    QPointer<StepsWindow> m_steps;           // made when it is first asked for
};

}  // namespace coltre
