#pragma once

#include <QByteArray>
#include <QFont>
#include <QImage>
#include <QString>

#include "drawings/drawing.h"

// A sketch as a picture for reports: dark lines on white whatever the palette of the screen, with the texts
// of the result labels, in its printed size.
namespace coltre {

enum class PictureFormat { svg, png, pdf };

/// The picture at 192 dots an inch, twice the resolution of a usual screen.
QImage sketch_image(const Drawing& drawing, const LabelTexts& labels, const QFont& font);

/// The complete content of a picture file; empty if it could not be made.
QByteArray sketch_picture(const Drawing& drawing, const LabelTexts& labels, const QFont& font,
                          PictureFormat format);

/// Writes a file anew in one step: whatever happens, there is the complete new file or the old one.
/// @return why it could not be written, in Italian; empty when all is well
QString replace_file(const QString& path, const QByteArray& content);

}  // namespace coltre
