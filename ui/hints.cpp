#include "ui/hints.h"

#include <QMouseEvent>

namespace coltre {

Hints::Hints(QLabel& Label25, QTimer& Timer1) : m_label(Label25), m_timer(Timer1) {
    QSizePolicy policy = m_label.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_label.setSizePolicy(policy);
    m_label.hide();
    connect(&m_timer, &QTimer::timeout, this, &Hints::tick);
}

void Hints::show_over(QWidget& control, const QString& text) {
    m_texts[&control] = text;
    control.setMouseTracking(true);
    control.installEventFilter(this);
}

void Hints::hide_over(QWidget& control) {
    control.setMouseTracking(true);
    control.installEventFilter(this);
}

bool Hints::eventFilter(QObject* control, QEvent* event) {
    if (event->type() != QEvent::MouseMove) return false;
    const auto text = m_texts.find(control);
    if (text == m_texts.end()) {
        hide();
        return false;
    }
    ShowHint(text->second);
    // A control that has no use for the move would pass it on to its background, which hides the hint. With
    // a button pressed the control is selecting text.
    return static_cast<QMouseEvent*>(event)->buttons() == Qt::NoButton;
}

void Hints::ShowHint(const QString& text) {
    m_text = text;
    m_timer.start();
}

void Hints::hide() {
    m_timer.stop();
    m_label.hide();
}

void Hints::tick() {
    m_label.setText(m_text);
    m_label.show();
    m_timer.stop();
}

}  // namespace coltre
