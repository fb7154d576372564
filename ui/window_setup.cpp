#include "ui/window_setup.h"

#include <QAbstractButton>
#include <QEvent>
#include <QScreen>
#include <QShortcutEvent>

namespace coltre {

namespace {

class WheelFilter : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject* /*object*/, QEvent* event) override {
        if (event->type() != QEvent::Wheel) return false;
        event->ignore();
        return true;
    }
};

/// Answers for a button before the button does.
class MnemonicFilter : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() != QEvent::Shortcut || static_cast<QShortcutEvent*>(event)->isAmbiguous())
            return false;
        auto* const button = static_cast<QAbstractButton*>(object);
        button->setFocus(Qt::ShortcutFocusReason);
        button->click();
        return true;
    }
};

}  // namespace

void fit_to_screen(QWidget& window) {
    constexpr QSize frame(16, 48);  // of the window manager: it is not known before the window is shown
    window.resize(window.size().boundedTo(window.screen()->availableSize() - frame));
}

void answer_mnemonics_at_once(QWidget& window) {
    auto* const filter = new MnemonicFilter(&window);
    for (QAbstractButton* const button : window.findChildren<QAbstractButton*>())
        button->installEventFilter(filter);
}

void fill(QComboBox& list, std::span<const std::string_view> items, int selected) {
    for (const std::string_view item : items)
        list.addItem(QString::fromUtf8(item.data(), static_cast<qsizetype>(item.size())));
    list.setCurrentIndex(selected);
}

void leave_lists_to_clicks_and_keys(QWidget& window) {
    auto* const filter = new WheelFilter(&window);
    for (QComboBox* const list : window.findChildren<QComboBox*>())
        list->installEventFilter(filter);
}

}  // namespace coltre
