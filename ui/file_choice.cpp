#include "ui/file_choice.h"

#include <QFileDialog>
#include <QFileInfo>

namespace coltre {

QString choose_file_to_save(QWidget* parent, const QString& title, const QString& suggested,
                            const QString& filter) {
    QFileDialog dialog(parent, title, suggested, filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QFileInfo(suggested).suffix());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString choose_file_to_open(QWidget* parent, const QString& title, const QString& suggested,
                            const QString& filter) {
    return QFileDialog::getOpenFileName(parent, title, suggested, filter);
}

}  // namespace coltre
