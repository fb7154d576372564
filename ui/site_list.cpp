#include "ui/site_list.h"

#include <QElapsedTimer>
#include <QListView>
#include <QProxyStyle>
#include <QSignalBlocker>

#include "text/names.h"

namespace coltre {

namespace {

/// Opens a list under its box, as high as its `maxVisibleItems`, with a scroll bar. The style's own way, over
/// the whole height of the screen and without one, suits a menu of ten entries.
class BoundedListStyle : public QProxyStyle {
  public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override {
        return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, answer);
    }
};

/// The list's view. The closed list searches through it as well.
class SearchedView : public QListView {
  public:
    using QListView::QListView;

    void keyboardSearch(const QString& typed) override {
        constexpr qint64 typing_memory = 1000;  // ms
        if (!m_last_key.isValid() || m_last_key.elapsed() > typing_memory) m_typed.clear();
        m_last_key.start();
        m_typed += typed;

        const std::string sought = fold_name(m_typed.toStdString());
        if (sought.empty()) return;
        const int current = currentIndex().row();
        // A text that grows may stay where it is; its first letter goes on to the next entry.
        int row = find(sought, m_typed.size() > typed.size() ? current : current + 1);
        // The same letter again and again walks through the entries that start with it.
        if (row < 0 && sought.find_first_not_of(sought.front()) == std::string::npos)
            row = find(sought.substr(0, 1), current + 1);
        if (row >= 0) setCurrentIndex(model()->index(row, 0));
    }

  private:
    /// First entry from `start` on, and around the end, that starts with the folded text; -1 if there is
    /// none.
    [[nodiscard]] int find(const std::string& sought, int start) const {
        const int count = model()->rowCount();
        for (int i = 0; i < count; ++i) {
            const int row = (std::max(start, 0) + i) % count;
            if (fold_name(model()->index(row, 0).data().toString().toStdString()).starts_with(sought))
                return row;
        }
        return -1;
    }

    QString m_typed;
    QElapsedTimer m_last_key;
};

}  // namespace

SiteList::SiteList(QWidget* parent) : QComboBox(parent) {
    // First of all: the view's scroll bar depends on it.
    auto* style = new BoundedListStyle;
    style->setParent(this);
    setStyle(style);
    setMaxVisibleItems(16);
    auto* view = new SearchedView(this);
    view->setUniformItemSizes(true);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setView(view);
    connect(this, &QComboBox::currentIndexChanged, this, [this](int index) {
        m_index_at_popup = -1;
        if (index >= 0) emit chosen(index);
    });
    connect(this, &QComboBox::activated, this, [this](int index) {
        if (index == m_index_at_popup) emit chosen(index);
    });
}

void SiteList::fill(std::span<const std::string> entries) {
    const QSignalBlocker silence(this);
    clear();
    QStringList texts;
    texts.reserve(static_cast<qsizetype>(entries.size()));
    for (const std::string& entry : entries)
        texts += QString::fromStdString(entry);
    addItems(texts);
    setCurrentIndex(-1);
}

void SiteList::choose(const std::string& entry) {
    const int index = findText(QString::fromStdString(entry));
    if (index < 0) return;
    if (index == currentIndex()) {
        emit chosen(index);
    } else {
        setCurrentIndex(index);
    }
}

void SiteList::showPopup() {
    m_index_at_popup = currentIndex();
    QComboBox::showPopup();
}

}  // namespace coltre
