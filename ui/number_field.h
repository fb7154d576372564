#pragma once

#include <QLineEdit>

#include "calculate/calculations.h"

namespace coltre {

/// A text field for a number. It takes any text; where the text is not wholly understood as a number the
/// field is marked and its tool tip says how it is read, "letto come 1", or that it is no number.
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

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void check();
    [[nodiscard]] QString reading() const;

    Reading m_reading = Reading::lenient;
    bool m_marked = false;
};

}  // namespace coltre
