#include "ui/result_label.h"

#include <QFocusEvent>

#include "text/number_text.h"

namespace coltre {

ResultLabel::ResultLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setFocusPolicy(Qt::StrongFocus);  // the keyboard reaches what it is to select
}

void ResultLabel::focusInEvent(QFocusEvent* event) {
    QLabel::focusInEvent(event);
    if (event->reason() != Qt::MouseFocusReason) setSelection(0, static_cast<int>(text().size()));
}

void ResultLabel::show_number(double value, int decimals) {
    setText(QString::fromStdString(display_number_text(round_half_even(value, decimals))));
}

}  // namespace coltre
