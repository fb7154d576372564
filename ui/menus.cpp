#include "ui/menus.h"

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QPrintDialog>
#include <QPrinter>
#include <QShortcut>

#include "drawings/sketches.h"
#include "platform/files.h"
#include "ui/altitude_repair.h"
#include "ui/clipboard.h"
#include "ui/document_pdf.h"
#include "ui/qt_text.h"
#include "ui/results_copy.h"
#include "ui/window_setup.h"
#include "version/maker.h"
#include "version/version.h"

namespace coltre {

namespace {

QString path_of(const std::string& suite_path) {
    return QString::fromStdString(path_text(find_path(suite_path)));
}

}  // namespace

const Menus::Entry Menus::entries[] = {
    {"File", "Apri lavoro…", "Ctrl+O", &Menus::open_job},
    {"File", "Salva lavoro…", "Ctrl+S", &Menus::save_job},
    {"File", "Relazione illustrata…", "Ctrl+E", &Menus::write_illustrated_report},
    {"File", "Stampa…", "Ctrl+P", &Menus::print_report},
    {"File", "Apri l'ultima relazione", "", &Menus::open_last_report},
    {"File", "Esci", "Ctrl+Q", &Menus::end_program},
    {"Modifica", "Copia i risultati", "Ctrl+Shift+C", &Menus::copy_results},
    {"Modifica", "Copia lo schizzo", "", &Menus::copy_sketch},
    {"Calcolo", "Trova comune…", "Ctrl+F", &Menus::find_place},
    {"Calcolo", "Confronta siti…", "", &Menus::compare_sites},
    {"Calcolo", "Che cosa succede se…", "Ctrl+D", &Menus::show_what_if},
    {"Calcolo", "Passaggi del calcolo", "Ctrl+T", &Menus::show_steps},
    {"Strumenti", "Verifica e ripara altitudini.txt…", "", &Menus::check_altitudes},
    {"Strumenti", "Casi di prova…", "", &Menus::show_worked_cases},
    {"Aiuto", "Manuale", "F1", &Menus::open_manual},
    {"Aiuto", "Informazioni su Coltre", "", &Menus::show_about},
};

Menus::Menus(QWidget& main_window, const Program& program, LastCalculation& last_calculation,
             UserDialogs& dialogs)
    : QObject(&main_window),
      open_file(QDesktopServices::openUrl),
      ask_printer([](QPrinter& printer) {
          QPrintDialog dialog(&printer, QApplication::activeWindow());
          dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
          return dialog.exec() == QDialog::Accepted;
      }),
      m_main_window(main_window),
      m_program(program),
      m_last_calculation(last_calculation),
      m_dialogs(dialogs) {}

void Menus::add_to(QWidget& window, const std::function<CalculationTab&()>& open_tab) {
    auto* const bar = new QMenuBar(&window);
    QMenu* menu = nullptr;
    for (const Entry& entry : entries) {
        if (menu == nullptr || menu->title() != entry.menu) menu = bar->addMenu(entry.menu);
        auto* const action = menu->addAction(entry.text);
        action->setShortcut(QKeySequence(entry.keys));
        connect(action, &QAction::triggered, this,
                [this, &entry, open_tab] { (this->*entry.chosen)(open_tab()); });
    }
    connect(new QShortcut(Qt::Key_F10, &window), &QShortcut::activated, bar,
            [bar] { bar->setActiveAction(bar->actions().constFirst()); });
    window.layout()->setMenuBar(bar);
    window.resize(window.width(), window.height() + bar->sizeHint().height());
    fit_to_screen(window);
}

void Menus::remember_report(const std::string& suite_path) {
    if (!suite_path.empty()) m_last_report = suite_path;
}

void Menus::show_error(const QString& text) {
    m_dialogs.show({Icon::error, std::string(program_title), text.toStdString()});
}

void Menus::open(const QUrl& file) {
    if (!open_file(file))
        show_error(
            QStringLiteral("Impossibile aprire il file %1: il sistema non ha un programma per aprirlo.")
                .arg(QDir::toNativeSeparators(file.toLocalFile())));
}

void Menus::write_illustrated_report(const CalculationTab& /*open_tab*/) {
    m_last_calculation.write_report(QApplication::activeWindow(), m_program.directories.JobName);
}

void Menus::print_report(const CalculationTab& /*open_tab*/) {
    const std::optional<Document> report = m_last_calculation.report();
    if (!report) return show_error(qt(no_calculation_yet));
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(QString::fromStdString(report->title));
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setFullPage(true);
    if (!ask_printer(printer)) return;
    const bool printed = print(*report, printer);
    const QString file = printer.outputFileName();
    if (file.isEmpty()) {
        if (!printed)
            show_error(
                QStringLiteral(
                    "La stampante %1 non accetta il documento: controllare che sia accesa e collegata.")
                    .arg(printer.printerName()));
        return;
    }
    const QString path = QDir::toNativeSeparators(QFileInfo(file).absoluteFilePath());
    if (!printed) return show_error(QStringLiteral("Impossibile stampare nel file %1.").arg(path));
    // The print dialog has a file name of its own, which is easily overlooked.
    m_dialogs.show({Icon::information, std::string(program_title),
                    QStringLiteral("La relazione illustrata è nel file %1.").arg(path).toStdString()});
}

void Menus::check_altitudes(const CalculationTab& /*open_tab*/) {
    check_and_repair_altitudes(m_program.directories.ProgramDirectory, m_dialogs);
}

void Menus::show_worked_cases(const CalculationTab& /*open_tab*/) {
    if (m_worked_cases == nullptr) m_worked_cases = new WorkedCasesWindow(m_dialogs, &m_main_window);
    bring_to_front(*m_worked_cases);
}

void Menus::show_steps(const CalculationTab& /*open_tab*/) {
    m_last_calculation.show_steps();
}

void Menus::open_last_report(const CalculationTab& /*open_tab*/) {
    if (m_last_report.empty())
        return show_error(QStringLiteral(
            "Nessuna relazione è stata scritta da quando il programma è aperto: selezionare «Crea "
            "relazione» e premere «Calcola»."));
    const QString path = path_of(m_last_report);
    if (!QFileInfo::exists(path)) return show_error(QStringLiteral("La relazione %1 non c'è più.").arg(path));
    open(QUrl::fromLocalFile(path));
}

void Menus::end_program(const CalculationTab& /*open_tab*/) {
    m_main_window.close();
}

void Menus::copy_results(const CalculationTab& open_tab) {
    const std::vector<ShownResult> results = open_tab.shown_results();
    if (results.empty())
        return show_error(QStringLiteral("Non ci sono risultati da copiare: premere «Calcola»."));
    if (!put_on_clipboard(
            copied(results, open_tab.results_are_stale() ? QString(pending_results) : QString())))
        show_error(clipboard_refuses);
}

void Menus::copy_sketch(const CalculationTab& open_tab) {
    open_tab.sketch_widget().copy_picture();
}

void Menus::open_manual(const CalculationTab& open_tab) {
    const QString program = path_of(m_program.own_directory);
    const char* const places[] = {"/manuale.html", "/../share/doc/coltre/manuale.html",
                                  "/../../share/doc/coltre/manuale.html"};
    for (const char* place : places) {
        const QFileInfo manual(program + place);
        if (!manual.exists()) continue;
        QUrl url = QUrl::fromLocalFile(manual.canonicalFilePath());
        url.setFragment(qt(describe(open_tab.kind()).manual_heading));
        return open(url);
    }
    show_error(
        QStringLiteral(
            "Il manuale non è installato: il file manuale.html non è né in %1 né in %1/../share/doc/coltre.")
            .arg(program));
}

void Menus::show_about(const CalculationTab& /*open_tab*/) {
    const std::string text = "Coltre " + std::string(version_and_build()) + "\r\r" + maker_text() + "\r\r" +
                             std::string(program_terms) + "\r" + std::string(notice_text);
    m_dialogs.show({Icon::information, std::string(program_title), text});
}

}  // namespace coltre
