#include "ui/qt_dialogs.h"

#include <QApplication>
#include <QMessageBox>
#include <cstdlib>

namespace coltre {

namespace {

QMessageBox::Icon icon_of(Icon icon) {
    switch (icon) {
        case Icon::error:
            return QMessageBox::Critical;
        case Icon::information:
            return QMessageBox::Information;
        case Icon::warning:
            return QMessageBox::Warning;
        case Icon::none:
            break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButton run(const Message& message, QMessageBox::StandardButtons buttons) {
    QString text = QString::fromStdString(message.text);
    text.replace('\r', '\n');
    QMessageBox box(icon_of(message.icon), QString::fromStdString(message.title), text, buttons,
                    QApplication::activeWindow());
    // Texts such as "<Eventuali riduzioni ...>" are no markup.
    box.setTextFormat(Qt::PlainText);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

}  // namespace

void QtDialogs::show(const Message& message) {
    run(message, QMessageBox::Ok);
}

bool QtDialogs::ask(const Message& question) {
    return run(question, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

void QtDialogs::end() {
    std::_Exit(EXIT_FAILURE);
}

}  // namespace coltre
