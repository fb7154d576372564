#pragma once

#include <QDialog>
#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "document/illustrated_report.h"
#include "ui/user_dialogs.h"

namespace coltre {

namespace Ui {
class ReportDialog;
}

/// What the dialog of the illustrated report offers first, and what was chosen there: kept for the run by
/// whoever opens it.
struct ReportChoices {
    enum class Format { pdf, odt, html };

    TitleBlock title_block;
    Layout layout = Layout::complete;
    Format format = Format::pdf;
};

/// Where the report's contents come from.
struct ReportSource {
    std::function<Document(const TitleBlock&, Layout)> document;
    std::function<std::string(const Document&)> html;  ///< bytes of the HTML file
    /// The file that saving suggests, without suffix.
    std::function<QString(const TitleBlock&)> suggested_path;
    QString site{};  ///< that the report names where no other place is typed
};

/// The dialog "Relazione illustrata": fields of the heading, layout, format. "Salva" asks for the file, and
/// before an existing one is replaced; a report that was saved can be opened at once.
class ReportDialog : public QDialog {
    Q_OBJECT

  public:
    /// @param choices  must live as long as the dialog, which leaves there what was typed when it closes
    ReportDialog(ReportSource source, ReportChoices& choices, UserDialogs& dialogs,
                 QWidget* parent = nullptr);
    ~ReportDialog() override;

    /// The file to be written, empty where the user would rather not: title, suggestion and filter in, path
    /// out. The file dialog unless a test asks.
    std::function<QString(const QString& title, const QString& suggested, const QString& filter)> ask_file;
    /// Opens a file with the program that the system has for it; false where it has none.
    std::function<bool(const QString& path)> open_file;

    void done(int result) override;

  private:
    [[nodiscard]] ReportChoices typed() const;
    void save_clicked();
    /// @return true if the report is there
    bool save(const ReportChoices& choices, const QString& path);

    ReportSource m_source;
    ReportChoices& m_choices;
    UserDialogs& m_dialogs;
    std::unique_ptr<Ui::ReportDialog> m_ui;
};

/// Says that a document has no date, and why.
Message no_document_date(const std::string& error);

/// Has the user save a report; returns when the dialog is closed.
/// @param source  nothing before the first calculation: a message says so
void ask_for_report(std::optional<ReportSource> source, ReportChoices& choices, UserDialogs& dialogs,
                    QWidget* parent);

}  // namespace coltre
