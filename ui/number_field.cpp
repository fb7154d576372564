#include "ui/number_field.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "platform/surroundings.h"
#include "text/number_reading.h"
#include "text/number_text.h"

namespace coltre {

NumberField::NumberField(QWidget* parent) : QLineEdit(parent) {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(this, &QLineEdit::textChanged, this, &NumberField::check);
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

/// How the text is read, where that needs saying; empty for a text that is a number.
QString NumberField::reading() const {
    if (m_reading == Reading::strict) {
        const StrictNumber number = read_strictly(utf8(), user_decimal_separator());
        if (number.verdict == StrictNumber::Verdict::number) return {};
        return number.verdict == StrictNumber::Verdict::not_a_number ? tr("non è un numero")
                                                                     : tr("il numero è troppo grande");
    }
    const LenientNumber number = read_leniently(utf8());
    if (number.beyond_range) return tr("il numero è troppo grande");
    if (number.wholly_understood) return {};
    return tr("letto come %1").arg(QString::fromStdString(display_number_text(number.value)).trimmed());
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
