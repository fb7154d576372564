#pragma once

#include <QDialog>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>

#include "document/document.h"

namespace coltre {

namespace Ui {
class StepsWindow;
}

/// What stands in place of steps and of a report before the first calculation.
inline constexpr std::string_view no_calculation_yet = "Nessun calcolo eseguito: premere Calcola.";

/// The window "Passaggi del calcolo": how the results came about, formula by formula, with the figure
/// beside them where it is wide enough. It is not modal; its
/// owner hands it the document of each calculation, whether it is open or not.
class StepsWindow : public QDialog {
    Q_OBJECT

  public:
    explicit StepsWindow(QWidget* parent = nullptr);
    ~StepsWindow() override;

    /// Shows these steps in place of the last ones, at the same height where they are as long.
    void show_document(const Document& document);

  signals:
    void clipboard_refused() const;

  protected:
    /// Follows the colours and the font of the screen.
    void changeEvent(QEvent* event) override;
    /// Follows the widths of the pages: remarks stand at the right, the figure is as wide as it can.
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void redraw();
    void follow_widths();
    [[nodiscard]] std::pair<double, double> line_widths() const;
    void copy_as_text() const;
    void copy_as_table() const;

    std::unique_ptr<Ui::StepsWindow> m_ui;
    std::optional<Document> m_document;        // nothing before the first calculation
    std::pair<double, double> m_drawn_widths;  // of the lines of steps and figure
};

}  // namespace coltre
