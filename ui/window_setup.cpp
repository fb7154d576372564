#include "ui/window_setup.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QEvent>
#include <QHeaderView>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcutEvent>
#include <QVBoxLayout>

#include "ui/qt_text.h"

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

struct AccessibleRole {
    const char* class_name;
    QAccessible::Role role;
};
constexpr AccessibleRole roles[] = {{"coltre::Form1", QAccessible::Window},
                                    {"coltre::casipart", QAccessible::Window},
                                    {"coltre::SketchWidget", QAccessible::Graphic},
                                    {"coltre::VectorPicture", QAccessible::Graphic}};

QAccessibleInterface* with_role(const QString& class_name, QObject* object) {
    for (const AccessibleRole& it : roles)
        if (class_name == it.class_name) return new QAccessibleWidget(static_cast<QWidget*>(object), it.role);
    return nullptr;
}

}  // namespace

QWidget& let_contents_scroll(QWidget& window) {
    // In the window from the beginning: the controls keep their order for the Tab key.
    auto* const area = new QScrollArea(&window);
    auto* const contents = new QWidget;
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(contents);
    contents->setLayout(window.layout());
    auto* const layout = new QVBoxLayout(&window);
    layout->setContentsMargins({});
    layout->addWidget(area);
    return *contents;
}

void fit_to_screen(QWidget& window) {
    constexpr QSize frame(10, 48);  // of the window manager: it is not known before the window is shown
    const QSize room = window.screen()->availableSize() - frame;
    QSize wanted = window.size();
    if (const auto* const area = window.findChild<QScrollArea*>()) {
        wanted = wanted.expandedTo(area->widget()->minimumSizeHint());
        // A scroll bar takes room from the other direction.
        const bool too_high = wanted.height() > room.height();
        if (wanted.width() > room.width())
            wanted.rheight() += area->horizontalScrollBar()->sizeHint().height();
        if (too_high) wanted.rwidth() += area->verticalScrollBar()->sizeHint().width();
    }
    window.resize(wanted.boundedTo(room));
}

void bring_to_front(QWidget& window) {
    window.show();
    window.raise();
    window.activateWindow();
}

void tell_roles_to_screen_readers() {
    QAccessible::installFactory(with_role);
}

void answer_mnemonics_at_once(QWidget& window) {
    auto* const filter = new MnemonicFilter(&window);
    for (QAbstractButton* const button : window.findChildren<QAbstractButton*>())
        button->installEventFilter(filter);
}

void fill(QComboBox& list, std::span<const std::string_view> items) {
    for (const std::string_view item : items)
        list.addItem(qt(item));
}

void set_row_height(QTableView& table) {
    const int letters = table.fontMetrics().height();
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.verticalHeader()->setMinimumSectionSize(letters);
    table.verticalHeader()->setDefaultSectionSize(letters + letters / 2);
}

void leave_lists_to_clicks_and_keys(QWidget& window) {
    auto* const filter = new WheelFilter(&window);
    for (QComboBox* const list : window.findChildren<QComboBox*>())
        list->installEventFilter(filter);
}

}  // namespace coltre
