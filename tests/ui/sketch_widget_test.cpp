#include "ui/sketch_widget.h"

#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include "drawings/sketches.h"
#include "tests/ui/window_test.h"
#include "ui/casipart.h"

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

    qs2->setText(" 1234567.1234");  // takes its room at once
    QApplication::processEvents();
    EXPECT_GE(qs2->width(), qs2->sizeHint().width());
    EXPECT_TRUE(sketch.rect().contains(qs2->geometry()));
}

TEST_F(SketchWidgetTest, LabelOfAHiddenSlotIsHiddenAndInNoPicture) {
    ls->setText(" 5.4321");
    sketch.set_drawing(level_change(8, false));
    EXPECT_TRUE(ls->isHidden());
    EXPECT_FALSE(qs2->isHidden());
    delete qs2;  // a deleted one is forgotten
    sketch.resize(700, 400);
    ASSERT_TRUE(sketch.save(directory.filePath("cut.svg"), PictureFormat::svg));
    EXPECT_FALSE(content(directory.filePath("cut.svg")).contains("5.4321"));
    sketch.set_drawing(level_change(8));
    EXPECT_FALSE(ls->isHidden());
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

// Numbers of other entries are grey, on the screen and in pictures.
TEST_F(SketchWidgetTest, StaleNumbersLookStale) {
    const auto ink = [&] { return qs2->palette().color(QPalette::WindowText).lightness(); };
    const int fresh = ink();
    Drawing drawing = level_change(8);
    mark_as_pending(drawing);
    sketch.set_drawing(drawing);
    EXPECT_GT(ink(), fresh + 80);
    const auto darkest = [&](const QImage& picture) {
        const QRectF number = SketchPainter(drawing, QRectF(picture.rect()), {})
                                  .to_pixels(drawing.find_slot("carico_14")->area);
        int least = 255;
        for (int y = qCeil(number.top()); y < number.bottom(); ++y)
            for (int x = qCeil(number.left()); x < number.right(); ++x)
                least = std::min(least, picture.pixelColor(x, y).lightness());
        return least;
    };
    EXPECT_GT(darkest(sketch_image(drawing, {{"carico_14", " 3.7594"}}, sketch.font())), 80);
    drawing.pending = false;
    EXPECT_LT(darkest(sketch_image(drawing, {{"carico_14", " 3.7594"}}, sketch.font())), 20);
    sketch.set_drawing(drawing);
    EXPECT_EQ(ink(), fresh);
}

class LevelChangeWindow : public WindowTest {};

TEST_F(LevelChangeWindow, TheDriftLengthComesAndGoesWithACalculationAlone) {
    program.cells.zone = 2;
    casipart window(
        program, dialogs,
        [] {
            return Inputs{{.asinput = "200", .ComboEsp = "1.0", .TextCTermico = "1.0"}, 2};
        },
        [] {});
    tested = &window;
    window.show();
    const auto is_shown = [&] { return !get("lsoutput").isHidden(); };
    EXPECT_TRUE(is_shown()) << "as designed";
    for (const auto& [b2, cut] : {std::pair{"4", true}, std::pair{"20", false}}) {
        const bool before = is_shown();
        type("b2input", b2);
        EXPECT_EQ(is_shown(), before) << b2;
        click("Calcola2");
        EXPECT_EQ(is_shown(), !cut) << b2;
        type("h2input", "abc");
        EXPECT_EQ(is_shown(), !cut) << b2;
        type("h2input", "2");
    }
}
}  // namespace coltre
