#include "ui/qt_dialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <algorithm>
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

/// Texts of the buttons, whatever the locale and whatever translations are installed.
struct ButtonText {
    QMessageBox::StandardButton button;
    const char* text;
};
constexpr ButtonText button_texts[] = {
    {QMessageBox::Yes, "&Sì"}, {QMessageBox::No, "&No"}, {QMessageBox::Ok, "OK"}};

/// The text with places to break in words that no line of a box has room for, such as a long path.
QString breakable(const QString& text) {
    constexpr int longest = 60;  // characters without a blank
    constexpr QChar break_here(u'\u200B');
    QString result;
    int length = 0;
    for (const QChar c : text) {
        length = c.isSpace() ? 0 : length + 1;
        if (length > longest && !c.isLowSurrogate()) {
            result += break_here;
            length = 1;
        }
        result += c;
    }
    return result;
}

QMessageBox::StandardButton run(const Message& message, QMessageBox::StandardButtons buttons) {
    const QString text = breakable(QString::fromStdString(message.text).replace('\r', '\n'));
    QMessageBox box(icon_of(message.icon), QString::fromStdString(message.title), text, buttons,
                    QApplication::activeWindow());
    // Texts such as "<Eventuali riduzioni ...>" are no markup.
    box.setTextFormat(Qt::PlainText);
    // The lines of a message are its own; only one that is wider than most of the screen is broken.
    if (auto* const label = box.findChild<QLabel*>("qt_msgbox_label")) {
        const int widest = box.screen()->availableGeometry().width() * 3 / 4;
        label->setMinimumWidth(std::min(label->fontMetrics().size(0, text).width() + 1, widest));
    }
    for (const ButtonText& it : button_texts)
        if (QAbstractButton* button = box.button(it.button)) button->setText(it.text);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

}  // namespace

std::string lines_of_message(std::span<const std::string> lines) {
    constexpr std::size_t most = 12;
    std::string text;
    for (const std::string& line : lines.first(std::min(lines.size(), most)))
        text += "\r– " + line;
    if (lines.size() > most) text += "\re altri " + std::to_string(lines.size() - most) + ".";
    return text;
}

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
