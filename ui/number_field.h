#pragma once

#include <QLineEdit>

namespace coltre {

/// A text field for a number. It takes any text; where the text is not wholly understood as a number the
/// field is marked and its tool tip says how it is read, "letto come 1", or that it is no number.
class NumberField : public QLineEdit {
    Q_OBJECT
    /// Whether the whole text must be a number (level change and wall); otherwise its leading number counts.
    Q_PROPERTY(bool strict MEMBER m_strict)

  public:
    explicit NumberField(QWidget* parent = nullptr);

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

    bool m_strict = false;
    bool m_marked = false;
};

}  // namespace coltre
