#include "ui/number_field.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QToolTip>

#include "platform/environment.h"
#include "text/number_reading.h"
#include "text/number_text.h"

namespace coltre {

NumberField::NumberField(QWidget* parent) : QLineEdit(parent) {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(this, &QLineEdit::textChanged, this, &NumberField::check);
    connect(this, &QLineEdit::textEdited, this, &NumberField::put_point_for_comma);
}

void NumberField::set_reading(Reading reading) {
    m_reading = reading;
    check();
}

void NumberField::check() {
    m_marked = !reading().isEmpty();
    setAccessibleDescription(reading());
    update();
}

QString NumberField::reading() const {
    if (m_reading == Reading::strict) {
        const StrictNumber number = read_strictly(utf8(), user_decimal_separator());
        if (number.verdict == StrictNumber::Verdict::number) return {};
        return number.verdict == StrictNumber::Verdict::not_a_number
                   ? QStringLiteral("non è un numero")
                   : QStringLiteral("è un numero troppo grande");
    }
    const LenientNumber number = read_leniently(utf8());
    if (number.beyond_range) return QStringLiteral("è un numero troppo grande");
    if (number.wholly_understood) return {};
    return QStringLiteral("letto come %1")
        .arg(QString::fromStdString(display_number_text(number.value)).trimmed());
}

bool NumberField::reads_comma() const {
    return m_reading == Reading::strict && user_decimal_separator() == ',';
}

void NumberField::keyPressEvent(QKeyEvent* event) {
    if (event->text() != "," || reads_comma()) return QLineEdit::keyPressEvent(event);
    QKeyEvent point(event->type(), Qt::Key_Period, event->modifiers(), ".");
    QLineEdit::keyPressEvent(&point);
}

/// For what comes by another way than a key: pasted, dropped, from an input method.
void NumberField::put_point_for_comma() {
    static const QRegularExpression one_comma("^[^.,]*(\\d,)\\d[^.,]*$");
    if (reads_comma() || isRedoAvailable()) return;  // what was undone is not done again
    const QRegularExpressionMatch match = one_comma.match(text());
    if (!match.hasMatch()) return;
    const int cursor = cursorPosition();
    setSelection(static_cast<int>(match.capturedEnd(1)) - 1, 1);
    insert(".");
    setCursorPosition(cursor);
}

bool NumberField::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && m_marked) {
        const QString hint = toolTip().isEmpty() ? reading() : toolTip() + '\n' + reading();
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), hint, this);
        return true;
    }
    return QLineEdit::event(event);
}

void NumberField::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    if (!m_marked) return;
    // A wavy line would look like a misspelt word: a plain bar under the text says "look here" in any
    // palette.
    QPainter painter(this);
    painter.fillRect(QRect(2, height() - 4, width() - 4, 2), QColor(0xE0, 0x80, 0x00));
}

}  // namespace coltre
