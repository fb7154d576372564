#include "ui/casipart.h"

#include <QKeyEvent>
#include <algorithm>
#include <utility>

#include "calculate/Calcola2.h"
#include "platform/environment.h"
#include "report/unit_systems.h"
#include "text/number_reading.h"
#include "ui/qt_text.h"
#include "ui/window_setup.h"
#include "ui_casipart.h"

namespace coltre {

namespace {

/// Item of `udmcombo` that the window opens with. The suite's setting counts from 1.
int first_unit_item(const Program& program) {
    return program.StandaloneFlag ? 0 : static_cast<int>(read_leniently(program.unit_setting).value) - 1;
}

}  // namespace

casipart::casipart(Program& program, UserDialogs& dialogs, std::function<Inputs()> site,
                   std::function<void()> show_ground_load, QWidget* parent)
    : QWidget(parent, Qt::Window),
      m_program(program),
      m_dialogs(dialogs),
      m_site(std::move(site)),
      m_show_ground_load(std::move(show_ground_load)),
      m_ui(std::make_unique<Ui::casipart>()) {
    m_ui->setupUi(this);
    fill(*m_ui->udmcombo, unit_items);
    m_ui->udmcombo->setCurrentIndex(first_unit_item(program));
    let_contents_scroll(*this);
    leave_lists_to_clicks_and_keys(*this);
    answer_mnemonics_at_once(*this);
    setAttribute(Qt::WA_DeleteOnClose);

    // The note comes and goes with the page; the pages are to stay where they are.
    QSizePolicy note_policy = m_ui->Label78->sizePolicy();
    note_policy.setRetainSizeWhenHidden(true);
    m_ui->Label78->setSizePolicy(note_policy);
    m_ui->Label78->setMinimumHeight(3 * fontMetrics().lineSpacing());

    m_tabs = make_tabs(Window::special_cases, *this, m_dialogs);
    for (const auto& tab : m_tabs)
        connect(tab.get(), &CalculationTab::typed, this, &casipart::follow_inputs);
    connect(m_ui->cartelle, &QTabWidget::currentChanged, this, &casipart::page_chosen);
    connect(m_ui->Check1Box, &QCheckBox::toggled, this, &casipart::report_switched);
    connect(m_ui->Calcola2, &QPushButton::clicked, this, &casipart::calculate_clicked);
    connect(m_ui->Chiudi2, &QPushButton::clicked, this, &casipart::close);
    page_chosen();
    report_switched();
    m_ui->h2input->setFocus();
    fit_to_screen(*this);
}

casipart::~casipart() = default;

CalculationTab& casipart::open_tab() const {
    const Kind kind = kind_of(Window::special_cases, m_ui->cartelle->currentIndex());
    return **std::ranges::find_if(m_tabs, [kind](const auto& tab) { return tab->kind() == kind; });
}

Inputs casipart::inputs(const CalculationTab& tab) const {
    Inputs inputs;
    if (describe(tab.kind()).needs_ground_load) inputs = m_site();
    inputs.fields.kind = tab.kind();
    inputs.fields.entries = tab.texts();
    inputs.fields.decimal_separator = user_decimal_separator();
    return inputs;
}

void casipart::follow_inputs() {
    CalculationTab& tab = open_tab();
    tab.follow(inputs(tab));
    emit changed();
}

void casipart::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) emit came_to_front();
    QWidget::changeEvent(event);
}

void casipart::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        m_ui->Calcola2->click();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void casipart::page_chosen() {
    follow_inputs();
    const std::string_view quotation = describe(open_tab().kind()).quotation;
    m_ui->Label78->setVisible(!quotation.empty());
    if (!quotation.empty()) m_ui->Label78->setText(qt(quotation));
}

void casipart::report_switched() {
    m_ui->udmcombo->setEnabled(m_ui->Check1Box->isChecked());
}

Fields casipart::fields() const {
    const CalculationTab& tab = open_tab();
    Fields fields = m_site().fields;
    fields.kind = tab.kind();
    fields.entries = tab.texts();
    fields.decimal_separator = user_decimal_separator();
    fields.udmcombo = m_ui->udmcombo->currentText().toStdString();
    fields.Check1Box = m_ui->Check1Box->isChecked();
    fields.traced = true;
    return fields;
}

void casipart::take(const Fields& fields) {
    m_ui->cartelle->setCurrentIndex(describe(fields.kind).page);
    open_tab().set_texts(fields.entries);
    m_ui->udmcombo->setCurrentText(QString::fromStdString(fields.udmcombo));
}

void casipart::calculate_clicked() {
    CalculationTab& tab = open_tab();
    const Fields fields = this->fields();
    const Outcome outcome = Calcola2(fields, m_program);
    // The labels are refreshed before the message about the report.
    if (outcome.complete) {
        m_show_ground_load();
        tab.show_results(outcome.calculation, m_program.cells, inputs(tab));
    }
    emit calculated(fields, outcome);
    m_dialogs.show(outcome.messages);
}

}  // namespace coltre
