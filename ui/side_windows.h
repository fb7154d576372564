#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <string>

#include "startup/program.h"
#include "ui/calculation_tab.h"
#include "ui/place_finder.h"
#include "ui/table_window.h"
#include "ui/user_dialogs.h"

namespace coltre {

/// The windows beside the calculation on show: "Trova comune", "Confronta siti", "Che cosa succede se". Each
/// is made when it is first asked for, and follows what is typed.
class SideWindows : public QObject {
    Q_OBJECT

  public:
    /// @param shown  the inputs of the calculation on show; the others outlive this
    SideWindows(QWidget& main_window, const Program& program, UserDialogs& dialogs,
                std::function<Inputs()> shown);

    void find_place();
    void compare_sites();
    void show_what_if();

    /// Another calculation is on show, or something else is typed in it.
    void follow();

  signals:
    /// The user chose a place in "Trova comune".
    void place_chosen(const std::string& province, const std::string& municipality);

  private:
    PlaceFinder& finder();
    [[nodiscard]] std::optional<LoadInputs> calculation() const;
    void follow_in_comparison();
    void follow_in_what_if();

    QWidget& m_main_window;
    const Program& m_program;
    UserDialogs& m_dialogs;
    std::function<Inputs()> m_shown;
    QPointer<PlaceFinder> m_finder;
    QPointer<TableWindow> m_comparison;
    QPointer<TableWindow> m_what_if;
};

}  // namespace coltre
