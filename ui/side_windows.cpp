#include "ui/side_windows.h"

#include <utility>

#include "document/formula_text.h"
#include "document/sensitivity.h"
#include "document/site_comparison.h"
#include "ui/qt_text.h"
#include "ui/window_setup.h"

namespace coltre {

namespace {

/// "Copertura a due falde"
QString name_of(const LoadInputs& calculation) {
    const QString name = qt(describe(calculation.entries.kind).meaning);
    return name.left(1).toUpper() + name.mid(1);
}

/// "Copertura a due falde: qs max = 1,2318 kN/m²"
QString heading_of(const LoadInputs& calculation) {
    const auto& [symbol, quantity] = greatest_load_name(calculation.entries.kind);
    const auto load = worst_load(calculation);
    if (!load) return name_of(calculation) + QStringLiteral(": il carico non si calcola con questi dati");
    return QStringLiteral("%1: %2 max = %3 %4")
        .arg(name_of(calculation), qt(symbol), qt(fixed_text(*load, quantity.decimals)), qt(quantity.unit));
}

const char* const no_calculation = "Un dato del calcolo non è un numero: i carichi non si calcolano.";

}  // namespace

SideWindows::SideWindows(QWidget& main_window, const Program& program, UserDialogs& dialogs,
                         std::function<Inputs()> shown)
    : QObject(&main_window),
      m_main_window(main_window),
      m_program(program),
      m_dialogs(dialogs),
      m_shown(std::move(shown)) {}

std::optional<LoadInputs> SideWindows::calculation() const {
    const Inputs inputs = m_shown();
    return load_inputs(inputs.fields, inputs.zone, inputs.return_period_factor);
}

PlaceFinder& SideWindows::finder() {
    if (m_finder == nullptr) {
        m_finder = new PlaceFinder(m_program.directories.ProgramDirectory, m_dialogs, &m_main_window);
        connect(m_finder, &PlaceFinder::chosen, this, &SideWindows::place_chosen);
        connect(m_finder, &PlaceFinder::marks_changed, this, &SideWindows::follow_in_comparison);
        connect(m_finder, &PlaceFinder::comparison_wanted, this, &SideWindows::compare_sites);
    }
    return *m_finder;
}

void SideWindows::find_place() {
    finder().set_calculation(calculation());
    bring_to_front(finder());
}

void SideWindows::compare_sites() {
    if (m_comparison == nullptr)
        m_comparison =
            new TableWindow(QStringLiteral("Confronta siti"), "confronto-siti", m_dialogs, &m_main_window);
    bring_to_front(*m_comparison);
    follow_in_comparison();
}

void SideWindows::show_what_if() {
    if (m_what_if == nullptr)
        m_what_if = new TableWindow(QStringLiteral("Che cosa succede se"), "che-cosa-succede-se", m_dialogs,
                                    &m_main_window);
    bring_to_front(*m_what_if);
    follow_in_what_if();
}

void SideWindows::follow() {
    if (m_finder != nullptr && m_finder->isVisible()) m_finder->set_calculation(calculation());
    follow_in_comparison();
    follow_in_what_if();
}

void SideWindows::follow_in_comparison() {
    if (m_comparison == nullptr || !m_comparison->isVisible()) return;
    const auto places = finder().marked_places();
    const auto now = calculation();
    if (places.empty()) {
        m_comparison->show_table(
            QStringLiteral("Nessun comune segnato: in «Trova comune» (Ctrl+F) la barra spaziatrice "
                           "segna i comuni da confrontare."),
            {}, {});
    } else if (!now) {
        m_comparison->show_table(no_calculation, {}, {});
    } else {
        m_comparison->show_table(name_of(*now) + (describe(now->entries.kind).needs_ground_load
                                                      ? QStringLiteral(": dal sito più gravoso")
                                                      : QStringLiteral(": il carico non dipende dal sito")),
                                 site_comparison(places, *now), {});
    }
}

void SideWindows::follow_in_what_if() {
    if (m_what_if == nullptr || !m_what_if->isVisible()) return;
    if (const auto now = calculation()) {
        m_what_if->show_table(heading_of(*now), variation_table(*now), load_over_altitude(*now));
    } else {
        m_what_if->show_table(no_calculation, {}, {});
    }
}

}  // namespace coltre
