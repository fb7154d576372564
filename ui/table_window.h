#pragma once

#include <QDialog>
#include <functional>
#include <memory>
#include <optional>

#include "document/document.h"
#include "ui/user_dialogs.h"

namespace coltre {

namespace Ui {
class TableWindow;
}

/// A window of one table, with a diagram above it if there is one, that other programs can have: by the
/// clipboard and as a CSV file. It is not modal.
class TableWindow : public QDialog {
    Q_OBJECT

  public:
    /// @param name  what the window is called, and first name of the file that it saves
    TableWindow(const QString& name, const QString& file_name, UserDialogs& dialogs, QWidget* parent);
    ~TableWindow() override;

    /// @param heading  what the table is of   @param diagram  nothing: none
    void show_table(const QString& heading, Table table, std::optional<Drawing> diagram);

    /// How the user is asked where to save; an empty answer saves nothing. A file dialog unless replaced.
    std::function<QString(const QString& title, const QString& suggested, const QString& filter)> ask_file;

  private:
    void copy() const;
    void save();

    UserDialogs& m_dialogs;
    QString m_file_name;
    std::unique_ptr<Ui::TableWindow> m_ui;
    Table m_table;
};

/// A table for spreadsheets. Numbers have the user's decimal separator, and the cells are separated by ";"
/// where that is a comma, by "," otherwise. UTF-8 with a byte order mark, CR LF.
QByteArray to_csv(const Table& table);

}  // namespace coltre
