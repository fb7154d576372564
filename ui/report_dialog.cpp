#include "ui/report_dialog.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QUrl>
#include <array>
#include <utility>

#include "ui/document_pdf.h"
#include "ui/document_text.h"
#include "ui/sketch_export.h"
#include "ui/steps_window.h"
#include "ui/window_setup.h"
#include "ui_report_dialog.h"

namespace coltre {

namespace {

using Format = ReportChoices::Format;

/// The formats in the order of their list.
struct FormatRow {
    Format format;
    const char* suffix;
    const char* item;
    const char* filter;
};
constexpr std::array<FormatRow, 3> formats{
    {{Format::pdf, ".pdf", "PDF (da stampare e consegnare)", "Documenti PDF (*.pdf)"},
     {Format::odt, ".odt", "ODT (da modificare)", "Documenti ODT (*.odt)"},
     {Format::html, ".html", "HTML (per il browser)", "Documenti HTML (*.html)"}}};

const FormatRow& row_of(Format format) {
    return formats[static_cast<std::size_t>(format)];
}

/// The name with the suffix of the format: another format's gives way, anything else is part of the name.
QString with_suffix(const QString& path, Format format) {
    for (const FormatRow& row : formats)
        if (path.endsWith(row.suffix, Qt::CaseInsensitive))
            return row.format == format
                       ? path
                       : path.chopped(static_cast<qsizetype>(qstrlen(row.suffix))) + row_of(format).suffix;
    return path + row_of(format).suffix;
}

std::string native(const QString& path) {
    return QDir::toNativeSeparators(path).toStdString();
}

Message error(std::string text) {
    return {Icon::error, std::string(program_title), std::move(text)};
}

}  // namespace

ReportDialog::ReportDialog(ReportSource source, ReportChoices& choices, UserDialogs& dialogs, QWidget* parent)
    : QDialog(parent),
      m_source(std::move(source)),
      m_choices(choices),
      m_dialogs(dialogs),
      m_ui(std::make_unique<Ui::ReportDialog>()) {
    ask_file = [this](const QString& title, const QString& suggested, const QString& filter) {
        // Whether to replace a file is asked when its name has its suffix.
        return QFileDialog::getSaveFileName(this, title, suggested, filter, nullptr,
                                            QFileDialog::DontConfirmOverwrite);
    };
    open_file = [](const QString& path) { return QDesktopServices::openUrl(QUrl::fromLocalFile(path)); };

    m_ui->setupUi(this);
    for (const FormatRow& row : formats)
        m_ui->formato->addItem(QString::fromUtf8(row.item));
    const TitleBlock& block = choices.title_block;
    const auto show = [](QLineEdit* field, const std::string& text) {
        field->setText(QString::fromStdString(text));
        field->setCursorPosition(0);
    };
    show(m_ui->lavoro, block.work);
    show(m_ui->committente, block.client);
    show(m_ui->ubicazione, block.place);
    m_ui->ubicazione->setPlaceholderText(m_source.site);
    show(m_ui->progettista, block.designer);
    show(m_ui->elaborato, block.sheet);
    show(m_ui->revisione, block.revision);
    show(m_ui->data, block.date);
    m_ui->contenuto->setCurrentIndex(static_cast<int>(choices.layout));
    m_ui->formato->setCurrentIndex(static_cast<int>(choices.format));

    leave_lists_to_clicks_and_keys(*this);
    answer_mnemonics_at_once(*this);
    fit_to_screen(*this);
    connect(m_ui->salva, &QPushButton::clicked, this, &ReportDialog::save_clicked);
    connect(m_ui->annulla, &QPushButton::clicked, this, &ReportDialog::reject);
}

ReportDialog::~ReportDialog() = default;

void ReportDialog::done(int result) {
    m_choices = typed();
    QDialog::done(result);
}

ReportChoices ReportDialog::typed() const {
    const auto text = [](const QLineEdit* field) { return field->text().trimmed().toStdString(); };
    return {{text(m_ui->lavoro), text(m_ui->committente), text(m_ui->ubicazione), text(m_ui->progettista),
             text(m_ui->elaborato), text(m_ui->revisione), text(m_ui->data)},
            static_cast<Layout>(m_ui->contenuto->currentIndex()),
            static_cast<Format>(m_ui->formato->currentIndex())};
}

void ReportDialog::save_clicked() {
    const ReportChoices choices = typed();
    const FormatRow& row = row_of(choices.format);
    const QString chosen =
        ask_file(QStringLiteral("Salva la relazione illustrata"),
                 m_source.suggested_path(choices.title_block) + row.suffix, QString::fromUtf8(row.filter));
    if (chosen.isEmpty()) return;
    const QString path = with_suffix(chosen, choices.format);
    if (QFileInfo(path).completeBaseName().isEmpty())
        return m_dialogs.show(error("Il nome del file " + native(path) + " ha soltanto l'estensione."));
    if (QFileInfo::exists(path) && !m_dialogs.ask({Icon::warning, std::string(program_title),
                                                   "Il file " + native(path) + " esiste già.\rSostituirlo?"}))
        return;
    if (!save(choices, path)) return;
    accept();
    if (m_dialogs.ask({Icon::information, std::string(program_title),
                       "Relazione salvata nel file " + native(path) + ".\rAprirla?"}) &&
        !open_file(path))
        m_dialogs.show(error("Nessun programma per aprire il file " + native(path) + "."));
}

bool ReportDialog::save(const ReportChoices& choices, const QString& path) {
    const Document document = m_source.document(choices.title_block, choices.layout);
    QByteArray content;
    switch (choices.format) {
        case Format::pdf:
            content = to_pdf(document);
            break;
        case Format::odt:
            content = to_odt(document);
            break;
        case Format::html:
            content = QByteArray::fromStdString(m_source.html(document));
            break;
    }
    const QString reason =
        content.isEmpty() ? QStringLiteral("il documento non è stato creato") : replace_file(path, content);
    if (reason.isEmpty()) return true;
    m_dialogs.show(error("Impossibile salvare la relazione nel file " + native(path) + ": " +
                         reason.toStdString() + "."));
    return false;
}

Message no_document_date(const std::string& error) {
    return {Icon::warning, std::string(program_title), "Il documento non ha la data: " + error + "."};
}

void ask_for_report(std::optional<ReportSource> source, ReportChoices& choices, UserDialogs& dialogs,
                    QWidget* parent) {
    if (source) {
        ReportDialog(std::move(*source), choices, dialogs, parent).exec();
    } else {
        dialogs.show({Icon::information, std::string(program_title), std::string(no_calculation_yet)});
    }
}

}  // namespace coltre
