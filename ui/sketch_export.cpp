#include "ui/sketch_export.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QtMath>

#include "drawings/svg.h"
#include "platform/file_replacement.h"
#include "platform/files.h"
#include "ui/sketch_painter.h"

namespace coltre {

namespace {

constexpr double twips_an_inch = 1440;
constexpr int image_dpi = 192;
constexpr int pdf_dpi = 1440;

QPalette report_palette() {
    QPalette palette;
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::Base, Qt::white);
    return palette;
}

/// The picture's size in dots, rounded up.
QSize dots(const Drawing& drawing, int dpi) {
    return {qCeil(drawing.page.width * dpi / twips_an_inch),
            qCeil(drawing.page.height * dpi / twips_an_inch)};
}

void paint_report(QPainter& painter, const QRectF& target, const Drawing& drawing, const LabelTexts& labels,
                  const QFont& font) {
    const SketchPainter sketch(drawing, target, {report_palette(), font});
    sketch.paint(painter);
    sketch.paint_numbers(painter, labels);
}

bool paint_pdf(QBuffer& buffer, const Drawing& drawing, const LabelTexts& labels, const QFont& font) {
    QPdfWriter writer(&buffer);
    writer.setResolution(pdf_dpi);
    writer.setCreator(QStringLiteral("Coltre"));
    constexpr double points_a_twip = 72 / twips_an_inch;
    writer.setPageSize(QPageSize(QSizeF(drawing.page.width, drawing.page.height) * points_a_twip,
                                 QPageSize::Point, {}, QPageSize::ExactMatch));
    writer.setPageMargins({});
    QPainter painter;
    if (!painter.begin(&writer)) return false;
    paint_report(painter, QRectF(0, 0, writer.width(), writer.height()), drawing, labels, font);
    return painter.end();
}

}  // namespace

QImage sketch_image(const Drawing& drawing, const LabelTexts& labels, const QFont& font) {
    QImage image(dots(drawing, image_dpi), QImage::Format_RGB32);
    if (image.isNull()) return image;
    image.fill(Qt::white);
    constexpr double metres_an_inch = 0.0254;
    image.setDotsPerMeterX(qRound(image_dpi / metres_an_inch));
    image.setDotsPerMeterY(qRound(image_dpi / metres_an_inch));
    QPainter painter(&image);
    paint_report(painter, QRectF({}, image.size()), drawing, labels, font);
    return image;
}

QByteArray sketch_picture(const Drawing& drawing, const LabelTexts& labels, const QFont& font,
                          PictureFormat format) {
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    bool made = false;
    switch (format) {
        case PictureFormat::svg:
            made = buffer.write(QByteArray::fromStdString(to_svg(drawing, {labels, "Coltre"}))) > 0;
            break;
        case PictureFormat::png:
            made = sketch_image(drawing, labels, font).save(&buffer, "PNG");
            break;
        case PictureFormat::pdf:
            made = paint_pdf(buffer, drawing, labels, font);
            break;
    }
    return made ? content : QByteArray();
}

QString replace_file(const QString& path, const QByteArray& content) {
    if (content.isEmpty()) return QStringLiteral("l'immagine non è stata creata");
    FileReplacement file(to_path(path.toStdString()), Outlives::power_failure);
    file.write({content.constData(), static_cast<std::size_t>(content.size())});
    return QString::fromStdString(file.commit().value_or(""));
}

}  // namespace coltre
