#pragma once

#include <QLabel>
#include <QObject>
#include <QTimer>
#include <unordered_map>

namespace coltre {

/// Hints about the control under the mouse, shown in a label when the mouse has rested for the timer's delay.
class Hints : public QObject {
    Q_OBJECT

  public:
    /// @param Label25  shows the hints; keeps its place while it is hidden
    /// @param Timer1   delays them
    Hints(QLabel& Label25, QTimer& Timer1);

    /// Mouse moves over the control ask for this hint.
    void show_over(QWidget& control, const QString& text);
    /// Mouse moves over the control hide the hint, and the one to come.
    void hide_over(QWidget& control);

  protected:
    bool eventFilter(QObject* control, QEvent* event) override;

  private:
    void ShowHint(const QString& text);
    void hide();
    void tick();

    QLabel& m_label;
    QTimer& m_timer;
    QString m_text;
    std::unordered_map<QObject*, QString> m_texts;  // by control
};

}  // namespace coltre
