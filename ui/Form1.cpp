#include "ui/Form1.h"

#include <QKeyEvent>
#include <limits>

#include "calculate/return_period.h"
#include "report/unit_systems.h"
#include "site/municipalities.h"
#include "site/regions.h"
#include "startup/start_up.h"
#include "text/number_text.h"
#include "ui/CoeffEsposizione.h"
#include "ui/PeriododiRitorno.h"
#include "ui/casipart.h"
#include "ui/maker.h"
#include "ui/result_display.h"
#include "ui/sketch_setup.h"
#include "ui/sketches/sketches.h"
#include "ui/window_setup.h"
#include "ui_Form1.h"

namespace coltre {

namespace {

QString qt(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

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
    leave_lists_to_clicks_and_keys(*this);
    answer_mnemonics_at_once(*this);
    fit_to_screen(*this);
    set_up_sketches();
    set_up_hints();
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
    connect(this, &Form1::site_changed, this, [this] {
        for (const RoofTab& tab : m_tabs)
            if (tab.sketch->shows_numbers()) draw(tab, nullptr);
    });
}

void Form1::set_up_sketches() {
    m_tabs = {
        {RoofFamily::one_pitch, m_ui->inputalfa, nullptr, m_ui->sketch_1, "copertura-una-falda"},
        {RoofFamily::two_pitches, m_ui->inputalfa1, m_ui->inputalfa2, m_ui->sketch_2, "copertura-due-falde"},
        {RoofFamily::several_pitches, m_ui->inputalfa3, m_ui->inputalfa4, m_ui->sketch_3,
         "copertura-piu-falde"},
        {RoofFamily::cylindrical, m_ui->Lcopcil, m_ui->hcopcil, m_ui->sketch_4, "copertura-cilindrica"}};
    for (const RoofTab& tab : m_tabs) {
        set_up_sketch(*tab.sketch, tab.picture, m_dialogs);
        for (NumberField* field : {tab.first, tab.second})
            if (field != nullptr)
                connect(field, &QLineEdit::textChanged, this, [this, &tab] { draw(tab, nullptr); });
        draw(tab, nullptr);
    }
}

void Form1::draw(const RoofTab& tab, const ProgramCells* loads) {
    MainWindowFields entries = fields();
    entries.SSTab1 = tab.family;
    EntryReader reader;
    Roof roof = read_roof(entries, reader);
    // A number beyond all range makes no roof: the sketch says so by its neutral shape.
    if (reader.stop()) roof.alfa1 = roof.L = std::numeric_limits<double>::quiet_NaN();
    Drawing drawing = sketch_roof(roof, loads);
    if (loads == nullptr && tab.sketch->shows_numbers()) mark_as_pending(drawing);
    tab.sketch->set_drawing(std::move(drawing));
}

void Form1::set_up_hints() {
    m_hints->show_over(*m_ui->asinput,
                       tr("Quota del suolo sul livello del mare nel sito di realizzazione dell' edificio, "
                          "ininfluente se minore di 200 m."));
    for (ResultLabel* label : findChildren<ResultLabel*>()) {
        if (label->objectName().startsWith("carico_"))
            m_hints->show_over(*label, tr("Il carico agisce in direzione verticale ed è riferito alla "
                                          "proiezione orizzontale della superficie della copertura. "
                                          "Considerare la più gravosa delle condizioni sopra riportate."));
        if (label->objectName().startsWith("spor_"))
            m_hints->show_over(*label, tr("Il carico distribuito in punta dovuto a neve sporgente va "
                                          "considerato in caso di copertura aggettante sulle pareti "
                                          "perimetrali."));
    }
    m_hints->hide_over(*this);
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
    fill(*m_ui->udmcombo, unit_items, start.unit_item);
    fill(*m_ui->ComboEsp, exposure_items, start.exposure_item);
    report_switched();

    std::vector<std::string> names;
    for (const Region& region : regions())
        names.emplace_back(region.name);
    m_ui->regione->fill(names);
    m_ui->regione->setCurrentIndex(start.region_item);
    m_ui->OutputPerRit->setText(qt(display_number_text(m_program.cells.return_period)).trimmed());
    show_return_period_factor();
    return true;
}

SiteFields Form1::site_fields() const {
    return {.asinput = m_ui->asinput->utf8(),
            .ComboEsp = m_ui->ComboEsp->currentText().toStdString(),
            .TextCTermico = m_ui->TextCTermico->utf8()};
}

void Form1::show_ground_load() {
    m_ui->caricosuolo->show_number(m_program.cells.qsk, quantities::area_load.decimals);
}

void Form1::show_return_period_factor() {
    const double factor = round_half_even(m_program.cells.return_period_factor, 4);
    m_ui->OutputPerRit->setToolTip(tr("coefficiente del periodo di ritorno:") +
                                   qt(display_number_text(factor)));
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
}

void Form1::province_chosen() {
    const std::string province = m_ui->Provinciainput->utf8();
    const ProvinceZone zone = ZoneOfProvince(province);
    m_program.cells.zone = zone.zone;
    m_ui->Zonalabel->setText(qt(zone.caption));
    emit site_changed();
    m_ui->comuneinput->fill({});
    AltitudeNotices notices;
    const auto municipalities = FillMunicipalities(m_program.directories.ProgramDirectory, province, notices);
    m_dialogs.show(notices.messages);
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
    m_dialogs.show(notices.messages);
    if (!altitude) return m_dialogs.end();
    m_ui->asinput->setText(QString::fromStdString(*altitude));
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
    m_return_period = dialog;
    dialog->show();
}

void Form1::exposure_table_clicked() {
    CoeffEsposizione(this).exec();
}

void Form1::special_cases_clicked() {
    if (raise_open(m_special_cases)) return;
    auto* window = new casipart(
        m_program, m_dialogs, [this] { return site_fields(); }, [this] { show_ground_load(); }, this);
    connect(this, &Form1::site_changed, window, &casipart::mark_ground_load_as_old);
    m_special_cases = window;
    window->show();
}

MainWindowFields Form1::fields() const {
    const SiteFields site = site_fields();
    return {.asinput = site.asinput,
            .ComboEsp = site.ComboEsp,
            .TextCTermico = site.TextCTermico,
            .SSTab1 = static_cast<RoofFamily>(m_ui->SSTab1->currentIndex()),
            .inputalfa = m_ui->inputalfa->utf8(),
            .inputalfa1 = m_ui->inputalfa1->utf8(),
            .inputalfa2 = m_ui->inputalfa2->utf8(),
            .inputalfa3 = m_ui->inputalfa3->utf8(),
            .inputalfa4 = m_ui->inputalfa4->utf8(),
            .Lcopcil = m_ui->Lcopcil->utf8(),
            .hcopcil = m_ui->hcopcil->utf8(),
            .udmcombo = m_ui->udmcombo->currentText().toStdString(),
            .Check1Box = m_ui->Check1Box->isChecked()};
}

void Form1::calculate_clicked() {
    const MainWindowFields entries = fields();
    const ClickOutcome outcome = Calcola(entries, m_program);
    m_dialogs.show(outcome.messages);
    if (outcome.L1output) m_ui->L1output->setText(QString::fromStdString(*outcome.L1output));
    if (outcome.L2output) m_ui->L2output->setText(QString::fromStdString(*outcome.L2output));
    if (outcome.results_complete) {
        show_ground_load();
        const RoofTab& tab = m_tabs[static_cast<std::size_t>(entries.SSTab1)];
        for (const DisplayRow& row : display_rows(tab.family)) {
            auto* const label = tab.sketch->findChild<ResultLabel*>(row.label, Qt::FindDirectChildrenOnly);
            label->show_number(m_program.cells.*row.cell.cell, row.cell.quantity.decimals);
        }
        draw(tab, &m_program.cells);
    }
    // Last: the numbers are those of the altitude as it was typed.
    if (outcome.asinput) m_ui->asinput->setText(QString::fromStdString(*outcome.asinput));
}

void Form1::information_clicked() {
    std::string text;
    for (const std::string_view line : maker_lines)
        text.append(text.empty() ? "" : "\r").append(line);
    m_dialogs.show({Icon::information, std::string(program_title), text});
}

}  // namespace coltre
