#include "ui/lists.h"

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
