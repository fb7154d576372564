#include "ui/wheel.h"

#include <QComboBox>
#include <QEvent>

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

}  // namespace

void leave_lists_to_clicks_and_keys(QWidget& window) {
    auto* const filter = new WheelFilter(&window);
    for (QComboBox* const list : window.findChildren<QComboBox*>())
        list->installEventFilter(filter);
}

}  // namespace coltre
