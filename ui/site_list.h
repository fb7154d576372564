#pragma once

#include <QComboBox>
#include <span>
#include <string>

namespace coltre {

/// A drop-down list of places. Typing jumps to the entry that starts with what was typed, blind to case,
/// accents and apostrophes, whether the list is open or not.
class SiteList : public QComboBox {
    Q_OBJECT

  public:
    explicit SiteList(QWidget* parent = nullptr);

    /// Replaces the entries. None is selected, and no signal is sent.
    void fill(std::span<const std::string> entries);

    /// The selected entry as the core takes it; empty if there is none.
    [[nodiscard]] std::string utf8() const { return currentText().toStdString(); }

    /// Chooses an entry as the user does, the selected one once more. One that is not in the list changes
    /// nothing.
    void choose(const std::string& entry);

    void showPopup() override;

  signals:
    /// An entry was chosen, by the user or by the program. The user may choose the selected entry once more.
    void chosen(int index);

  private:
    int m_index_at_popup = -1;
};

}  // namespace coltre
