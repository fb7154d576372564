#pragma once

#include <QLabel>
#include <QPixmap>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "drawings/drawing.h"
#include "ui/sketch_export.h"
#include "ui/sketch_painter.h"

namespace coltre {

/// What a result label shows while it has no number.
inline const QString no_number = QStringLiteral("–");

/// Shows a sketch with the result labels of its window at their places. Its context menu copies the picture
/// and saves it as SVG, PNG or PDF.
class SketchWidget : public QWidget {
    Q_OBJECT

  public:
    explicit SketchWidget(QWidget* parent = nullptr);

    void set_drawing(Drawing drawing);
    [[nodiscard]] const Drawing& drawing() const { return m_drawing; }

    /// Takes a label in and keeps it centred on its slot, as large as its text; it is hidden while the
    /// drawing has no such slot, or a hidden one.
    /// @param label  becomes a child of the sketch
    /// @param slot   name of the slot, "carico_1" for instance
    void host(QLabel* label, const QString& slot);

    /// Whether any label that was taken in shows a number.
    [[nodiscard]] bool shows_numbers() const;

    /// File name without suffix that saving suggests; "schizzo" before.
    void set_suggested_name(const QString& name) { m_suggested_name = name; }

    /// How the user is asked where to save: title, suggested name, filter; an empty answer saves nothing.
    /// A file dialog unless replaced.
    std::function<QString(const QString& title, const QString& suggested, const QString& filter)> ask_file;

    /// How an error is shown; to be set by the window.
    std::function<void(const QString& text)> report_error;

    /// Saves the picture with the texts of its labels; a message says if that fails.
    /// @return true if the file is written
    bool save(const QString& path, PictureFormat format);

    /// The same picture to the clipboard, in all formats; a message says if that fails.
    void copy_picture() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    /// Labels take their places when the sketch comes into sight.
    void showEvent(QShowEvent* event) override;

  private:
    struct HostedLabel {
        QPointer<QLabel> label;  // the window may delete it
        std::string slot;
    };

    void add_save_action(const QString& text, const QString& name, PictureFormat format,
                         const QString& filter, const QString& suffix);
    [[nodiscard]] SketchPainter painter_of_size() const;
    [[nodiscard]] QSize size_for_letters(double part) const;
    [[nodiscard]] LabelTexts label_texts() const;
    void place_labels();
    void redraw();

    Drawing m_drawing;
    std::vector<HostedLabel> m_labels;
    bool m_labels_in_place = false;
    QString m_suggested_name = QStringLiteral("schizzo");
    QPixmap m_picture;  // the drawing without its labels, at the widget's size; null: to be painted anew
};

}  // namespace coltre
