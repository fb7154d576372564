#include "ui/PeriododiRitorno.h"

#include "calculate/return_period.h"
#include "text/number_text.h"
#include "ui_PeriododiRitorno.h"

namespace coltre {

QString return_period_factor_line(const ProgramCells& cells) {
    const double factor = round_half_even(cells.return_period_factor, 4);
    const QString text = QStringLiteral("coefficiente") + QString::fromStdString(display_number_text(factor));
    return cells.confirmed_return_period ? text : text + QStringLiteral(", non confermato");
}

PeriododiRitorno::PeriododiRitorno(ProgramCells& cells, UserDialogs& dialogs, const QString& in_force,
                                   QWidget* parent)
    : QDialog(parent), m_cells(cells), m_dialogs(dialogs), m_ui(std::make_unique<Ui::PeriododiRitorno>()) {
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    m_ui->InputPerRIT->setText(in_force);
    m_ui->InputPerRIT->selectAll();
    connect(m_ui->InputPerRIT, &QLineEdit::textChanged, this, &PeriododiRitorno::show_factor);
    show_factor();
    connect(m_ui->OkPerRit, &QPushButton::clicked, this, &PeriododiRitorno::confirm_clicked);
    connect(m_ui->AnnPerRit, &QPushButton::clicked, this, &PeriododiRitorno::close);
}

PeriododiRitorno::~PeriododiRitorno() = default;

void PeriododiRitorno::show_factor() {
    ProgramCells trial = m_cells;
    const ReturnPeriodOutcome outcome = confirm_return_period(m_ui->InputPerRIT->utf8(), trial);
    m_ui->typed_factor->setText(outcome.OutputPerRit ? return_period_factor_line(trial)
                                                     : QStringLiteral("coefficiente –"));
}

void PeriododiRitorno::confirm_clicked() {
    const ReturnPeriodOutcome outcome = confirm_return_period(m_ui->InputPerRIT->utf8(), m_cells);
    if (outcome.message) m_dialogs.show(*outcome.message);
    if (!outcome.OutputPerRit) return;
    emit confirmed(QString::fromStdString(*outcome.OutputPerRit));
    close();
}

}  // namespace coltre
