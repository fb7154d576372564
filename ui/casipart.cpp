#include "ui/casipart.h"

#include <QKeyEvent>
#include <limits>
#include <utility>

#include "platform/environment.h"
#include "report/unit_systems.h"
#include "text/number_reading.h"
#include "ui/result_display.h"
#include "ui/sketch_setup.h"
#include "ui/sketches/sketches.h"
#include "ui/window_setup.h"
#include "ui_casipart.h"

namespace coltre {

namespace {

/// Item of `udmcombo` that the window opens with. The suite's setting counts from 1.
int first_unit_item(const Program& program) {
    return program.StandaloneFlag ? 0 : static_cast<int>(read_leniently(program.unit_setting).value) - 1;
}

}  // namespace

casipart::casipart(Program& program, UserDialogs& dialogs, std::function<SiteFields()> site_fields,
                   std::function<void()> show_ground_load, QWidget* parent)
    : QWidget(parent, Qt::Window),
      m_program(program),
      m_dialogs(dialogs),
      m_site_fields(std::move(site_fields)),
      m_show_ground_load(std::move(show_ground_load)),
      m_ui(std::make_unique<Ui::casipart>()) {
    m_ui->setupUi(this);
    leave_lists_to_clicks_and_keys(*this);
    answer_mnemonics_at_once(*this);
    setAttribute(Qt::WA_DeleteOnClose);

    // The note comes and goes with the page; the pages are to stay where they are.
    QSizePolicy note_policy = m_ui->Label78->sizePolicy();
    note_policy.setRetainSizeWhenHidden(true);
    m_ui->Label78->setSizePolicy(note_policy);
    m_ui->Label78->setMinimumHeight(3 * fontMetrics().lineSpacing());

    fill(*m_ui->udmcombo, unit_items, first_unit_item(program));

    set_up_sketch(*m_ui->sketch_5, "discontinuita", m_dialogs);
    set_up_sketch(*m_ui->sketch_6, "parete", m_dialogs);
    set_up_sketch(*m_ui->sketch_7, "ostacolo", m_dialogs);

    for (NumberField* const field : findChildren<NumberField*>()) {
        connect(field, &QLineEdit::textChanged, this, [this] { draw(fields().cartelle, false); });
    }
    connect(m_ui->cartelle, &QTabWidget::currentChanged, this, &casipart::page_chosen);
    connect(m_ui->Check1Box, &QCheckBox::toggled, this, &casipart::report_switched);
    connect(m_ui->Calcola2, &QPushButton::clicked, this, &casipart::calculate_clicked);
    connect(m_ui->Chiudi2, &QPushButton::clicked, this, &casipart::close);
    page_chosen();
    for (const SpecialCase page : {SpecialCase::level_change, SpecialCase::wall, SpecialCase::snow_guard}) {
        draw(page, false);
    }
    report_switched();
    m_ui->h2input->setFocus();
    fit_to_screen(*this);
}

casipart::~casipart() = default;

void casipart::mark_ground_load_as_old() {
    draw(SpecialCase::level_change, false);
    draw(SpecialCase::wall, false);
}

void casipart::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        m_ui->Calcola2->click();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void casipart::page_chosen() {
    const auto page = static_cast<SpecialCase>(m_ui->cartelle->currentIndex());
    m_ui->Label78->setVisible(page != SpecialCase::wall);
    if (page == SpecialCase::level_change) {
        m_ui->Label78->setText(
            tr("<In corrisponenza di bruschi cambiamenti di quota delle coperture si considererà la "
               "distribuzione di carico più gravosa tra quelle indicate in assenza di discontinuità e quella "
               "qui riportata> (Circ. 4 luglio 96 - C.6.4)"));
    } else if (page == SpecialCase::snow_guard) {
        m_ui->Label78->setText(
            tr("<La forza esercitata da una massa di neve contro una protezione viene calcolata nell'ipotesi "
               "che il coefficiente di attrito tra neve e manto sia nullo. La forza va considerata nella "
               "direzione dello slittamento per unità di lunghezza dell' ostacolo.> (Circ. 4 luglio 96 - "
               "C.6.6)"));
    }
}

void casipart::report_switched() {
    m_ui->udmcombo->setEnabled(m_ui->Check1Box->isChecked());
}

SpecialCasesFields casipart::fields() const {
    const SiteFields site = m_site_fields();
    return {
        .asinput = site.asinput,
        .ComboEsp = site.ComboEsp,
        .TextCTermico = site.TextCTermico,
        .cartelle = static_cast<SpecialCase>(m_ui->cartelle->currentIndex()),
        .b1input = m_ui->b1input->utf8(),
        .b2input = m_ui->b2input->utf8(),
        .h2input = m_ui->h2input->utf8(),
        .deltainput = m_ui->deltainput->utf8(),
        .h3input = m_ui->h3input->utf8(),
        .qsinput = m_ui->qsinput->utf8(),
        .biinput = m_ui->biinput->utf8(),
        .angoloinput = m_ui->angoloinput->utf8(),
        .udmcombo = m_ui->udmcombo->currentText().toStdString(),
        .Check1Box = m_ui->Check1Box->isChecked(),
        .decimal_separator = user_decimal_separator(),
    };
}

/// Draws the sketch of a page from its entries.
/// @param with_results  the cells hold the results of these very entries
void casipart::draw(SpecialCase page, bool with_results) {
    SpecialCasesFields typed = fields();
    typed.cartelle = page;
    EntryReader reader;
    SpecialCaseEntries entries = read_entries(typed, reader);
    // Entries that are no numbers make no roof: the sketch says so by its neutral shape.
    if (reader.stop()) entries.h = entries.b = std::numeric_limits<double>::quiet_NaN();
    SketchWidget* const sketches[] = {m_ui->sketch_5, m_ui->sketch_6, m_ui->sketch_7};
    SketchWidget& sketch = *sketches[static_cast<std::size_t>(page)];
    Drawing drawing = sketch_special_case(entries, with_results ? &m_program.cells : nullptr);
    if (!with_results && sketch.shows_numbers()) mark_as_pending(drawing);
    sketch.set_drawing(std::move(drawing));
}

void casipart::calculate_clicked() {
    const SpecialCasesFields entries = fields();
    const ClickOutcome outcome = Calcola2(entries, m_program);
    // The labels are refreshed before the message about the report.
    if (outcome.results_complete) show_results(entries.cartelle);
    m_dialogs.show(outcome.messages);
}

void casipart::show_results(SpecialCase page) {
    m_show_ground_load();
    for (const DisplayRow& row : display_rows(page))
        findChild<ResultLabel*>(row.label)->show_number(m_program.cells.*row.cell.cell,
                                                        row.cell.quantity.decimals);
    draw(page, true);
}

}  // namespace coltre
