#include "ui/sketch_widget.h"

#include <QAction>
#include <QEvent>
#include <QFileInfo>
#include <QFontInfo>
#include <QMimeData>
#include <QPaintEvent>
#include <QtMath>
#include <algorithm>
#include <memory>
#include <utility>

#include "ui/clipboard.h"
#include "ui/file_choice.h"

namespace coltre {

SketchWidget::SketchWidget(QWidget* parent) : QWidget(parent) {
    ask_file = [this](const QString& title, const QString& suggested, const QString& filter) {
        return choose_file_to_save(this, title, suggested, filter);
    };

    setContextMenuPolicy(Qt::ActionsContextMenu);
    setFocusPolicy(Qt::StrongFocus);  // so that the menu key reaches the menu
    auto* copy = new QAction(QStringLiteral("&Copia immagine"), this);
    copy->setObjectName(QStringLiteral("copia_immagine"));
    connect(copy, &QAction::triggered, this, &SketchWidget::copy_picture);
    addAction(copy);
    add_save_action(QStringLiteral("Salva come &SVG…"), QStringLiteral("salva_svg"), PictureFormat::svg,
                    QStringLiteral("Immagini SVG (*.svg)"), QStringLiteral(".svg"));
    add_save_action(QStringLiteral("Salva come &PNG…"), QStringLiteral("salva_png"), PictureFormat::png,
                    QStringLiteral("Immagini PNG (*.png)"), QStringLiteral(".png"));
    add_save_action(QStringLiteral("Salva come P&DF…"), QStringLiteral("salva_pdf"), PictureFormat::pdf,
                    QStringLiteral("Documenti PDF (*.pdf)"), QStringLiteral(".pdf"));
}

void SketchWidget::add_save_action(const QString& text, const QString& name, PictureFormat format,
                                   const QString& filter, const QString& suffix) {
    auto* action = new QAction(text, this);
    action->setObjectName(name);
    connect(action, &QAction::triggered, this, [this, format, filter, suffix] {
        const QString path = ask_file(QStringLiteral("Salva immagine"), m_suggested_name + suffix, filter);
        if (!path.isEmpty()) save(path, format);
    });
    addAction(action);
}

void SketchWidget::set_drawing(Drawing drawing) {
    m_drawing = std::move(drawing);
    redraw();
}

void SketchWidget::host(QLabel* label, const QString& slot) {
    label->setParent(this);
    m_labels.push_back({label, slot.toStdString()});
    place_labels();
}

void SketchWidget::redraw() {
    m_picture = {};
    place_labels();
    update();
}

SketchPainter SketchWidget::painter_of_size() const {
    constexpr double largest = 1.75;  // of the letters around the sketch
    return {m_drawing, QRectF(rect()), {palette(), font(), largest * QFontInfo(font()).pixelSize()}};
}

void SketchWidget::place_labels() {
    m_labels_in_place = isVisible();
    if (!m_labels_in_place) return;  // most sketches stay behind another tab
    const SketchPainter sketch = painter_of_size();
    QFont letters = sketch.text_font();
    if (letters.pixelSize() < QFontInfo(font()).pixelSize()) letters = font();
    QPalette numbers = palette();
    numbers.setColor(QPalette::WindowText, sketch.number_colour());
    numbers.setColor(QPalette::Text, sketch.number_colour());
    std::erase_if(m_labels, [](const HostedLabel& it) { return it.label.isNull(); });
    for (const HostedLabel& it : m_labels) {
        const LabelSlot* slot = m_drawing.find_slot(it.slot);
        const bool shown = slot != nullptr && slot->visible;
        if (shown) {
            it.label->setFont(letters);
            it.label->setPalette(numbers);
            QRect place = sketch.number_rect(*slot, it.label->sizeHint()).toRect();
            // A number wider than its slot stays in sight.
            place.moveLeft(std::clamp(place.left(), 0, std::max(0, width() - place.width())));
            it.label->setGeometry(place);
        }
        it.label->setVisible(shown);
    }
}

bool SketchWidget::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::LayoutRequest:  // a label has another text
            place_labels();
            update();
            break;
        case QEvent::PaletteChange:
        case QEvent::FontChange:
        case QEvent::StyleChange:
            redraw();
            updateGeometry();
            break;
        default:
            break;
    }
    return QWidget::event(event);
}

void SketchWidget::showEvent(QShowEvent* /*event*/) {
    if (!m_labels_in_place) place_labels();
}

void SketchWidget::resizeEvent(QResizeEvent* /*event*/) {
    redraw();
}

void SketchWidget::paintEvent(QPaintEvent* /*event*/) {
    const SketchPainter sketch = painter_of_size();
    if (m_picture.isNull() || m_picture.devicePixelRatio() != devicePixelRatioF()) {
        m_picture = QPixmap(size() * devicePixelRatioF());
        m_picture.setDevicePixelRatio(devicePixelRatioF());
        m_picture.fill(palette().color(QPalette::Base));
        QPainter painter(&m_picture);
        sketch.paint(painter);
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_picture);
    for (const LabelSlot& slot : m_drawing.label_slots) {
        const auto hosted = std::ranges::find(m_labels, slot.name, &HostedLabel::slot);
        if (hosted == m_labels.end() || !hosted->label || !slot.visible) continue;
        if (slot.repeats) {
            sketch.paint_number(painter, slot, hosted->label->text());
        } else {
            sketch.paint_slot(painter, slot, hosted->label->geometry());
        }
    }
    if (hasFocus()) {
        // The style's own frame would tint the whole drawing.
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

QSize SketchWidget::size_for_letters(double part) const {
    const double scale = QFontInfo(font()).pixelSize() * part / text_height;
    return {qCeil(m_drawing.page.width * scale), qCeil(m_drawing.page.height * scale)};
}

QSize SketchWidget::sizeHint() const {
    return size_for_letters(1.2);
}

// With smaller letters beside them the labels, which keep theirs, would no longer fit their slots.
QSize SketchWidget::minimumSizeHint() const {
    return size_for_letters(0.85);
}

bool SketchWidget::shows_numbers() const {
    return !label_texts().empty();
}

LabelTexts SketchWidget::label_texts() const {
    LabelTexts texts;
    for (const HostedLabel& it : m_labels)
        if (it.label && it.label->text() != no_number) texts[it.slot] = it.label->text().toStdString();
    return texts;
}

bool SketchWidget::save(const QString& path, PictureFormat format) {
    const QString reason = replace_file(path, sketch_picture(m_drawing, label_texts(), font(), format));
    if (reason.isEmpty()) return true;
    report_error(
        QStringLiteral("Impossibile salvare il file %1: %2").arg(QFileInfo(path).fileName(), reason));
    return false;
}

void SketchWidget::copy_picture() const {
    const LabelTexts labels = label_texts();
    auto copied = std::make_unique<QMimeData>();
    copied->setImageData(sketch_image(m_drawing, labels, font()));
    copied->setData("image/svg+xml", sketch_picture(m_drawing, labels, font(), PictureFormat::svg));
    copied->setData("application/pdf", sketch_picture(m_drawing, labels, font(), PictureFormat::pdf));
    if (!put_on_clipboard(std::move(copied))) report_error(clipboard_refuses);
}

}  // namespace coltre
