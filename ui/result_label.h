#pragma once

#include <QLabel>

namespace coltre {

/// A label that shows a result: selectable text in the program's number form.
class ResultLabel : public QLabel {
    Q_OBJECT

  public:
    explicit ResultLabel(QWidget* parent = nullptr);

    /// Shows the value rounded to `decimals` decimals (a tie to the even neighbour), with a blank for the
    /// sign: " 0.576".
    void show_number(double value, int decimals);

    /// Grey while the number belongs to other entries than those on show.
    void set_stale(bool stale) {
        setForegroundRole(stale ? QPalette::PlaceholderText : QPalette::WindowText);
    }

  protected:
    /// Selects the text when the keyboard comes to it, so that it is seen where the focus is.
    void focusInEvent(QFocusEvent* event) override;
};

}  // namespace coltre
