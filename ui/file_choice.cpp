#include "ui/file_choice.h"

#include <QFileDialog>
#include <QFileInfo>

#include "ui/window_setup.h"

namespace coltre {

namespace {

QString chosen(QFileDialog& dialog) {
    fit_to_screen(dialog);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

}  // namespace

QString choose_file_to_save(QWidget* parent, const QString& title, const QString& suggested,
                            const QString& filter) {
    QFileDialog dialog(parent, title, suggested, filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QFileInfo(suggested).suffix());
    return chosen(dialog);
}

QString choose_file_to_open(QWidget* parent, const QString& title, const QString& suggested,
                            const QString& filter) {
    QFileDialog dialog(parent, title, suggested, filter);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return chosen(dialog);
}

}  // namespace coltre
