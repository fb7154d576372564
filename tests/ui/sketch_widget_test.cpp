#include "ui/sketch_widget.h"

#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include "drawings/sketches.h"
#include "tests/ui/window_test.h"

namespace coltre {
namespace {

Drawing level_change(double b2, bool drift_length_shown = true) {
    return sketch({.kind = Kind::level_change, .alfa = 10, .b1 = 3, .b2 = b2, .h = 2}, nullptr,
                  drift_length_shown);
}

QByteArray content(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class SketchWidgetTest : public testing::Test {
  protected:
    SketchWidgetTest() {
        sketch.host(qs2, "carico_14");
        sketch.host(ls, "lsoutput");
        sketch.set_drawing(level_change(8));
        sketch.resize(600, 350);
        sketch.show();
        QApplication::processEvents();
    }

    QTemporaryDir directory;
    SketchWidget sketch;
    QLabel* qs2 = new QLabel(" 3.7594");  // its children
    QLabel* ls = new QLabel(" 5");
};

}  // namespace

TEST_F(SketchWidgetTest, LabelsStayWithinTheirSlotsAtEverySize) {
    for (const QSize size : {QSize(420, 260), QSize(900, 500), QSize(500, 900), QSize(1400, 300)}) {
        sketch.resize(size);
        QApplication::processEvents();
        const SketchPainter painter(sketch.drawing(), QRectF(sketch.rect()), {});
        for (const auto& [label, slot] : {std::pair{qs2, "carico_14"}, std::pair{ls, "lsoutput"}}) {
            const QRectF area = painter.to_pixels(sketch.drawing().find_slot(slot)->area);
            EXPECT_TRUE(area.adjusted(-1, -1, 1, 1).contains(QRectF(label->geometry()))) << slot;
            EXPECT_GE(label->width(), label->sizeHint().width());
        }
    }
    EXPECT_EQ(sketch.minimumSizeHint().boundedTo(QSize(420, 260)), sketch.minimumSizeHint());

    const auto ink = [&] { return qs2->palette().color(QPalette::WindowText).lightness(); };
    const int fresh = ink();
    Drawing drawing = level_change(8);
    mark_as_pending(drawing);
    sketch.set_drawing(drawing);
    EXPECT_GT(ink(), fresh + 80) << "numbers of other entries are grey";
}

TEST_F(SketchWidgetTest, TheMenuSavesThePictureWithTheNumbers) {
    sketch.set_suggested_name("discontinuita");
    QString suggestion;
    sketch.ask_file = [&](const QString&, const QString& suggested, const QString&) {
        suggestion = suggested;
        return directory.filePath(suggested);
    };
    const auto saved_by = [&](const char* action) {
        sketch.findChild<QAction*>(action)->trigger();
        return content(directory.filePath(suggestion));
    };
    const QByteArray svg = saved_by("salva_svg");
    EXPECT_EQ(suggestion, "discontinuita.svg");
    EXPECT_TRUE(svg.contains(">3.7594<")) << "result";
    EXPECT_TRUE(svg.contains(">b2 = 8 m<")) << "dimension";
    EXPECT_FALSE(svg.contains("<image")) << "vector";
    EXPECT_TRUE(saved_by("salva_pdf").startsWith("%PDF-"));
    QImage png;
    ASSERT_TRUE(png.loadFromData(saved_by("salva_png"), "PNG"));
    EXPECT_EQ(png.size(), QSize(1000, 574));
}

// A picture in a report is dark on white, whatever the screen shows.
TEST_F(SketchWidgetTest, PicturesDoNotFollowADarkPalette) {
    const QImage light = sketch_image(sketch.drawing(), {}, sketch.font());
    QPalette dark(QColor(40, 40, 40));
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    sketch.setPalette(dark);
    EXPECT_EQ(sketch.grab().toImage().pixelColor(2, 2), QColor(Qt::black));
    EXPECT_EQ(sketch_image(sketch.drawing(), {}, sketch.font()), light);
}

}  // namespace coltre
