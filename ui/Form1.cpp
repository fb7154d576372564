#include "ui/Form1.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <algorithm>

#include "calculate/Calcola.h"
#include "calculate/return_period.h"
#include "report/unit_systems.h"
#include "site/regions.h"
#include "startup/start_up.h"
#include "text/number_text.h"
#include "ui/CoeffEsposizione.h"
#include "ui/PeriododiRitorno.h"
#include "ui/qt_text.h"
#include "ui/window_setup.h"
#include "ui_Form1.h"
#include "version/maker.h"

namespace coltre {

namespace {

/// Brings a window that is open to the front.
/// @return false if there is none
bool raise_open(QWidget* window) {
    if (window == nullptr) return false;
    window->raise();
    window->activateWindow();
    return true;
}

}  // namespace

Form1::Form1(Program& program, UserDialogs& dialogs, QWidget* parent)
    : QWidget(parent), m_program(program), m_dialogs(dialogs), m_ui(std::make_unique<Ui::Form1>()) {
    m_ui->setupUi(this);
    m_Timer1.setObjectName("Timer1");
    m_Timer1.setInterval(800);
    m_hints = std::make_unique<Hints>(*m_ui->Label25, m_Timer1);
    tell_roles_to_screen_readers();
    fill(*m_ui->udmcombo, unit_items);
    fill(*m_ui->ComboEsp, exposure_items);
    QWidget& ground = let_contents_scroll(*this);
    leave_lists_to_clicks_and_keys(*this);
    answer_mnemonics_at_once(*this);
    m_tabs = make_tabs(Window::main, *this, m_dialogs);
    set_up_hints(ground);
    connect_controls();
}

Form1::~Form1() = default;

void Form1::connect_controls() {
    connect(m_ui->regione, &SiteList::chosen, this, &Form1::region_chosen);
    connect(m_ui->Provinciainput, &SiteList::chosen, this, &Form1::province_chosen);
    connect(m_ui->comuneinput, &SiteList::chosen, this, &Form1::municipality_chosen);
    connect(m_ui->Check1Box, &QCheckBox::toggled, this, &Form1::report_switched);
    connect(m_ui->Modifica, &QPushButton::clicked, this, &Form1::return_period_clicked);
    connect(m_ui->Command1, &QPushButton::clicked, this, &Form1::exposure_table_clicked);
    connect(m_ui->Bottcpart, &QPushButton::clicked, this, &Form1::special_cases_clicked);
    connect(m_ui->Calcola, &QPushButton::clicked, this, &Form1::calculate_clicked);
    connect(m_ui->Info, &QPushButton::clicked, this, &Form1::information_clicked);
    connect(m_ui->Chiudi, &QPushButton::clicked, this, &Form1::close);

    connect(m_ui->asinput, &QLineEdit::textChanged, this, &Form1::site_changed);
    connect(m_ui->TextCTermico, &QLineEdit::textChanged, this, &Form1::site_changed);
    connect(m_ui->ComboEsp, &QComboBox::currentIndexChanged, this, &Form1::site_changed);
    connect(&m_menus, &Menus::find_place, &m_side_windows, &SideWindows::find_place);
    connect(&m_menus, &Menus::compare_sites, &m_side_windows, &SideWindows::compare_sites);
    connect(&m_menus, &Menus::show_what_if, &m_side_windows, &SideWindows::show_what_if);
    connect(&m_side_windows, &SideWindows::place_chosen, this,
            [this](const std::string& province, const std::string& municipality) {
                choose_site(province, municipality);
                m_ui->Calcola->setFocus();
            });
    connect(&m_menus, &Menus::open_job, this, &Form1::open_job);
    connect(&m_menus, &Menus::save_job, this, &Form1::save_job);
    connect(this, &Form1::site_changed, this, &Form1::follow_inputs);
    connect(m_ui->SSTab1, &QTabWidget::currentChanged, this, &Form1::follow_inputs);
    for (const auto& tab : m_tabs)
        connect(tab.get(), &CalculationTab::typed, this, &Form1::follow_inputs);
}

CalculationTab& Form1::open_tab() const {
    const Kind kind = kind_of(Window::main, m_ui->SSTab1->currentIndex());
    return **std::ranges::find_if(m_tabs, [kind](const auto& tab) { return tab->kind() == kind; });
}

Inputs Form1::inputs(const CalculationTab& tab) const {
    Inputs inputs = site();
    inputs.fields.kind = tab.kind();
    inputs.fields.entries = tab.texts();
    return inputs;
}

void Form1::follow_inputs() {
    CalculationTab& tab = open_tab();
    tab.follow(inputs(tab));
    m_ui->caricosuolo->set_stale(m_ground_load_of && *m_ground_load_of != site());
    m_side_windows.follow();
}

Inputs Form1::shown_inputs() const {
    if (!m_special_cases || !m_special_cases_in_front) return inputs(open_tab());
    Inputs shown = site();
    shown.fields = m_special_cases->fields();
    return shown;
}

void Form1::in_front(bool special_cases) {
    m_special_cases_in_front = special_cases;
    m_side_windows.follow();
}

void Form1::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) in_front(false);
    QWidget::changeEvent(event);
}

void Form1::set_up_hints(QWidget& ground) {
    m_hints->show_over(
        *m_ui->asinput,
        QStringLiteral("Quota del suolo sul livello del mare nel sito di realizzazione dell' edificio, "
                       "ininfluente se minore di 200 m."));
    for (ResultLabel* label : findChildren<ResultLabel*>()) {
        if (label->objectName().startsWith("carico_"))
            m_hints->show_over(
                *label, QStringLiteral("Il carico agisce in direzione verticale ed è riferito alla "
                                       "proiezione orizzontale della superficie della copertura. "
                                       "Considerare la più gravosa delle condizioni sopra riportate."));
        if (label->objectName().startsWith("spor_"))
            m_hints->show_over(*label,
                               QStringLiteral("Il carico distribuito in punta dovuto a neve sporgente va "
                                              "considerato in caso di copertura aggettante sulle pareti "
                                              "perimetrali."));
    }
    m_hints->hide_over(ground);
    m_hints->hide_over(*m_ui->Frame1);
    m_hints->hide_over(*m_ui->Label32);
    m_hints->hide_over(*m_ui->SSTab1);
    // The tab control's surface: its bar, its pages and what they are laid out with.
    for (QWidget* part : m_ui->SSTab1->findChildren<QWidget*>())
        if (qobject_cast<QLabel*>(part) == nullptr && qobject_cast<QLineEdit*>(part) == nullptr)
            m_hints->hide_over(*part);
}

bool Form1::load(std::string_view command_line, std::string_view own_directory) {
    Messages messages;
    const StartUp start = start_up(command_line, own_directory, m_program, messages);
    m_dialogs.show(messages);
    if (!start.goes_on) {
        m_dialogs.end();
        return false;
    }
    if (start.caption) setWindowTitle(QString::fromStdString(*start.caption));
    m_ui->udmcombo->setCurrentIndex(start.unit_item);
    m_ui->ComboEsp->setCurrentIndex(start.exposure_item);
    report_switched();

    std::vector<std::string> names;
    for (const Region& region : regions())
        names.emplace_back(region.name);
    m_ui->regione->fill(names);
    m_ui->regione->setCurrentIndex(start.region_item);
    m_ui->OutputPerRit->setText(qt(display_number_text(m_program.cells.return_period)).trimmed());
    show_return_period_factor();
    follow_inputs();
    m_menus.add_to(*this, [this]() -> CalculationTab& { return open_tab(); });
    return true;
}

Inputs Form1::site() const {
    Inputs site;
    site.fields.asinput = m_ui->asinput->utf8();
    site.fields.ComboEsp = m_ui->ComboEsp->currentText().toStdString();
    site.fields.TextCTermico = m_ui->TextCTermico->utf8();
    site.zone = m_program.cells.zone;
    site.return_period_factor = m_program.cells.return_period_factor;

    const std::string province = m_ui->Provinciainput->utf8();
    if (province.empty()) {
        site.site_notes.push_back("sito non scelto: " + std::string(zone_name(site.zone)));
    } else if (ZoneOfProvince(province).zone != site.zone) {
        site.site_notes.push_back("zona del lavoro, non della provincia: " +
                                  std::string(zone_name(site.zone)));
    }
    if (m_ui->asinput->is_marked())
        site.site_notes.push_back("altitudine: " + m_ui->asinput->reading().toStdString());
    if (m_ui->TextCTermico->is_marked())
        site.site_notes.push_back("Ct " + m_ui->TextCTermico->reading().toStdString());
    return site;
}

void Form1::show_ground_load(const Inputs& of) {
    m_ui->caricosuolo->show_number(m_program.cells.qsk, quantities::area_load.decimals);
    m_ground_load_of = of;
    follow_inputs();
}

void Form1::show_return_period_factor() {
    m_ui->factor_in_force->setText(return_period_factor_line(m_program.cells));
}

void Form1::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        m_ui->Calcola->click();
    else
        QWidget::keyPressEvent(event);
}

void Form1::region_chosen(int index) {
    std::vector<std::string> provinces;
    FillProvinces(index, provinces);
    m_ui->Provinciainput->fill(provinces);
    // The municipalities still shown belong to no province that is chosen: choosing one would look for it in
    // vain.
    m_ui->comuneinput->setEnabled(false);
    emit site_changed();
}

void Form1::province_chosen() {
    const std::string province = m_ui->Provinciainput->utf8();
    const ProvinceZone zone = ZoneOfProvince(province);
    m_program.cells.zone = zone.zone;
    m_ui->Zonalabel->setText(qt(zone.caption));
    emit site_changed();
    m_ui->comuneinput->fill({});
    m_ui->altitude_note->hide();
    AltitudeNotices notices;
    const auto municipalities = FillMunicipalities(m_program.directories.ProgramDirectory, province, notices);
    show_notices(notices);
    if (!municipalities) return m_dialogs.end();
    m_ui->comuneinput->setEnabled(true);
    m_ui->comuneinput->fill(*municipalities);
    m_ui->comuneinput->setCurrentIndex(0);
}

void Form1::municipality_chosen() {
    AltitudeNotices notices;
    const std::optional<std::string> altitude =
        ReadAltitude(m_program.directories.ProgramDirectory, m_ui->Provinciainput->utf8(),
                     m_ui->comuneinput->utf8(), notices);
    show_notices(notices);
    if (!altitude) return m_dialogs.end();
    m_listed_altitude = *altitude;
    m_ui->asinput->setText(QString::fromStdString(*altitude));
}

void Form1::show_notices(const AltitudeNotices& notices) {
    if (!notices.note.empty()) {
        m_ui->altitude_note->setText(QString::fromStdString(notices.note));
        m_ui->altitude_note->show();
    }
    m_dialogs.show(notices.messages);
}

void Form1::choose_site(const std::string& province, const std::string& municipality) {
    const auto region = std::ranges::find_if(regions(), [&province](const Region& it) {
        return std::ranges::find(it.provinces, province) != it.provinces.end();
    });
    if (region == regions().end()) return region_chosen(m_ui->regione->currentIndex());
    m_ui->regione->choose(std::string(region->name));
    m_ui->Provinciainput->choose(province);
    m_ui->comuneinput->choose(municipality);
}

void Form1::set_return_period(const std::string& confirmed) {
    withdraw_return_period(m_program.cells);
    if (!confirmed.empty()) confirm_return_period(confirmed, m_program.cells);
    m_ui->OutputPerRit->setText(qt(display_number_text(m_program.cells.return_period)).trimmed());
    show_return_period_factor();
}

void Form1::open_job() {
    const std::optional<Job> job = m_job.open(m_program.directories.ProgramDirectory);
    if (!job) return;
    take(*job);
    m_job.opened(job_of(job->fields.kind));
}

void Form1::save_job(const CalculationTab& tab) {
    m_job.save(job_of(tab.kind()));
}

std::string Form1::job_of(Kind kind) const {
    const bool main = describe(kind).window == Window::main;
    return job_file(subject(main ? fields() : m_special_cases->fields()));
}

void Form1::take(const Job& job) {
    choose_site(job.province, job.municipality);
    m_program.cells.zone = job.zone;
    m_ui->Zonalabel->setText(qt(zone_caption(job.zone)));
    m_ui->asinput->setText(QString::fromStdString(job.fields.asinput));
    set_return_period(job.return_period);
    m_ui->ComboEsp->setCurrentText(QString::fromStdString(job.fields.ComboEsp));
    m_ui->TextCTermico->setText(QString::fromStdString(job.fields.TextCTermico));
    if (describe(job.fields.kind).window == Window::main) {
        m_ui->SSTab1->setCurrentIndex(describe(job.fields.kind).page);
        m_ui->udmcombo->setCurrentText(QString::fromStdString(job.fields.udmcombo));
        open_tab().set_texts(job.fields.entries);
        raise_open(this);
    } else {
        special_cases_clicked();
        m_special_cases->take(job.fields);
    }
    emit site_changed();
}

void Form1::closeEvent(QCloseEvent* event) {
    event->setAccepted(m_job.may_end());
}

void Form1::report_switched() {
    m_ui->udmcombo->setEnabled(m_ui->Check1Box->isChecked());
}

void Form1::return_period_clicked() {
    if (!m_dialogs.ask(return_period_question()) || raise_open(m_return_period)) return;
    auto* dialog = new PeriododiRitorno(m_program.cells, m_dialogs, m_ui->OutputPerRit->text(), this);
    connect(dialog, &PeriododiRitorno::confirmed, m_ui->OutputPerRit, &ResultLabel::setText);
    connect(dialog, &PeriododiRitorno::confirmed, this, &Form1::show_return_period_factor);
    connect(dialog, &PeriododiRitorno::confirmed, this, &Form1::site_changed);
    connect(dialog, &PeriododiRitorno::confirmed, m_ui->Calcola, qOverload<>(&QWidget::setFocus));
    m_return_period = dialog;
    dialog->show();
}

void Form1::exposure_table_clicked() {
    CoeffEsposizione(this).exec();
}

void Form1::special_cases_clicked() {
    if (raise_open(m_special_cases)) return;
    auto* window = new casipart(
        m_program, m_dialogs, [this] { return site(); }, [this] { show_ground_load(site()); }, this);
    connect(this, &Form1::site_changed, window, &casipart::follow_inputs);
    connect(window, &casipart::calculated, this, &Form1::keep);
    connect(window, &casipart::changed, &m_side_windows, &SideWindows::follow);
    connect(window, &casipart::came_to_front, this, [this] { in_front(true); });
    m_menus.add_to(*window, [window]() -> CalculationTab& { return window->open_tab(); });
    m_special_cases = window;
    window->show();
}

Fields Form1::fields() const {
    Fields fields = inputs(open_tab()).fields;
    fields.udmcombo = m_ui->udmcombo->currentText().toStdString();
    fields.Check1Box = m_ui->Check1Box->isChecked();
    fields.traced = true;
    return fields;
}

void Form1::calculate_clicked() {
    CalculationTab& tab = open_tab();
    const Inputs calculated_site = site();
    const Inputs calculated = inputs(tab);
    const Fields fields = this->fields();
    if (const auto notice = altitude_notice(fields)) {
        m_dialogs.show(notice->message);
        m_ui->asinput->setText(QString::fromStdString(notice->asinput));
    }
    const Outcome outcome = Calcola(fields, m_program);
    const WidthLabels widths = width_labels(outcome.calculation);
    if (widths.L1output) m_ui->L1output->setText(QString::fromStdString(*widths.L1output));
    if (widths.L2output) m_ui->L2output->setText(QString::fromStdString(*widths.L2output));
    keep(fields, outcome);
    m_dialogs.show(outcome.messages);
    if (!outcome.complete) return;
    tab.show_results(outcome.calculation, m_program.cells, calculated);
    show_ground_load(calculated_site);
    follow_inputs();  // the altitude field may hold another altitude by now
}

Subject Form1::subject(const Fields& fields) const {
    Subject subject;
    subject.fields = fields;
    subject.job_name = m_program.directories.JobName;
    subject.zone = m_program.cells.zone;
    subject.return_period = m_program.cells.return_period;
    subject.confirmed_return_period = m_program.cells.confirmed_return_period;
    subject.province = m_ui->Provinciainput->utf8();
    if (!subject.province.empty()) {
        subject.zone_of_province = ZoneOfProvince(subject.province).zone == subject.zone;
        subject.municipality = m_ui->comuneinput->utf8();
        subject.listed_altitude = m_listed_altitude;
    }
    return subject;
}

void Form1::keep(const Fields& fields, const Outcome& outcome) {
    m_menus.remember_report(outcome.report);
    Subject subject = this->subject(fields);
    m_job.calculated(job_file(subject));
    subject.outcome = outcome;
    m_last_calculation.keep(std::move(subject));
}

void Form1::information_clicked() {
    m_dialogs.show({Icon::information, std::string(program_title), maker_text()});
}

}  // namespace coltre
