#pragma once

#include <QLineEdit>

#include "calculate/calculations.h"

namespace coltre {

/// A text field for a number. It takes any text; where the text is not wholly understood as a number the
/// field is marked and its tool tip says how it is read, "letto come 1", or that it is no number.
///
/// Where only the point is read as a decimal separator, a comma that is typed becomes one, and so does the
/// only comma of a text that is pasted, between digits. A text that the program sets stays as it is.
class NumberField : public QLineEdit {
    Q_OBJECT

  public:
    explicit NumberField(QWidget* parent = nullptr);

    /// How the core reads the text; leniently unless set.
    void set_reading(Reading reading);

    /// The text as the core takes it.
    [[nodiscard]] std::string utf8() const { return text().toStdString(); }
    /// True while the text is marked as not wholly understood.
    [[nodiscard]] bool is_marked() const { return m_marked; }
    /// How the text is read, where that needs saying: "letto come 1", "non è un numero"; empty for a text
    /// that is a number.
    [[nodiscard]] QString reading() const;

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void check();
    void put_point_for_comma();
    [[nodiscard]] bool reads_comma() const;

    Reading m_reading = Reading::lenient;
    bool m_marked = false;
};

}  // namespace coltre
