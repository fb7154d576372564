#include "ui/worked_cases_window.h"

#include "platform/date.h"
#include "requests/worked_cases.h"
#include "ui/document_pdf.h"
#include "ui/document_text.h"
#include "ui/file_choice.h"
#include "ui/report_dialog.h"
#include "ui/sketch_export.h"
#include "ui/window_setup.h"
#include "ui_worked_cases_window.h"
#include "version/version.h"

namespace coltre {

WorkedCasesWindow::WorkedCasesWindow(UserDialogs& dialogs, QWidget* parent)
    : QDialog(parent, Qt::Window), m_dialogs(dialogs), m_ui(std::make_unique<Ui::WorkedCasesWindow>()) {
    const std::vector<CaseOutcome> outcomes = run_worked_cases();
    const DocumentDate date = document_date();
    if (date.error) m_dialogs.show(no_document_date(*date.error));
    m_document = worked_cases_document(outcomes, "Coltre " + std::string(version_and_build()), date.text);
    m_ui->setupUi(this);
    m_ui->esito->setText(QString::fromStdString(summary(outcomes)));
    ask_file = [this](const QString& title, const QString& suggested, const QString& filter) {
        return choose_file_to_save(this, title, suggested, filter);
    };
    answer_mnemonics_at_once(*this);
    fit_to_screen(*this);
    connect(m_ui->salva, &QPushButton::clicked, this, &WorkedCasesWindow::save);
    connect(m_ui->chiudi, &QPushButton::clicked, this, &WorkedCasesWindow::close);
}

WorkedCasesWindow::~WorkedCasesWindow() = default;

void WorkedCasesWindow::redraw() {
    constexpr double document_margin = 4;
    QTextBrowser& page = *m_ui->casi;
    write_text(m_document, {font(), palette().color(QPalette::Text), palette().color(QPalette::Base)},
               {.width = page.viewport()->width() - 2 * document_margin, .dots = devicePixelRatioF()},
               *page.document());
    page.moveCursor(QTextCursor::Start);
}

void WorkedCasesWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) redraw();
    QDialog::changeEvent(event);
}

void WorkedCasesWindow::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    if (isVisible()) redraw();
}

void WorkedCasesWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    redraw();
}

void WorkedCasesWindow::save() {
    const QString path = ask_file(QStringLiteral("Salva i casi di prova"), "casi-di-prova.pdf",
                                  QStringLiteral("Documenti PDF (*.pdf)"));
    if (path.isEmpty()) return;
    const QByteArray content = to_pdf(m_document);
    const QString reason =
        content.isEmpty() ? QStringLiteral("il documento non è stato creato") : replace_file(path, content);
    if (reason.isEmpty()) return;
    m_dialogs.show({Icon::error, std::string(program_title),
                    QStringLiteral("Impossibile salvare i casi di prova nel file %1: %2.")
                        .arg(path, reason)
                        .toStdString()});
}

}  // namespace coltre
