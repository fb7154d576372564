#pragma once

#include <QDialog>
#include <functional>
#include <memory>

#include "document/document.h"
#include "ui/user_dialogs.h"

namespace coltre {

namespace Ui {
class WorkedCasesWindow;
}

/// The window "Casi di prova": runs the worked cases when it is made, shows their working with each number
/// expected and found, and saves that as a PDF with the date, the version and the build. It is not modal.
class WorkedCasesWindow : public QDialog {
    Q_OBJECT

  public:
    WorkedCasesWindow(UserDialogs& dialogs, QWidget* parent);
    ~WorkedCasesWindow() override;

    /// How the user is asked where to save; an empty answer saves nothing. A file dialog unless replaced.
    std::function<QString(const QString& title, const QString& suggested, const QString& filter)> ask_file;

  protected:
    /// Follows the colours and the font of the screen, and the width of the page.
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void redraw();
    void save();

    UserDialogs& m_dialogs;
    std::unique_ptr<Ui::WorkedCasesWindow> m_ui;
    Document m_document;
};

}  // namespace coltre
