#include "tests/ui/window_test.h"

namespace coltre {
namespace {

class HintsTest : public MainWindowTest {
  protected:
    void move_over(const char* name, QPoint at = {}) {
        QWidget& widget = name == std::string_view("window") ? window : get(name);
        QTest::mouseMove(&widget, at);  // without a place to its middle
        QApplication::processEvents();
    }
    /// A place of the control without children.
    QPoint bottom(const char* name) { return {8, get(name).height() - 4}; }
    bool shown() { return get("Label25").isVisible(); }
    QTimer& Timer1() { return *window.findChild<QTimer*>("Timer1"); }
    /// Lets the delay pass at once.
    void tick() {
        ASSERT_TRUE(Timer1().isActive());
        Timer1().setInterval(0);
        ASSERT_TRUE(QTest::qWaitFor([this] { return !Timer1().isActive(); }));
        Timer1().setInterval(800);
    }
};

TEST_F(HintsTest, ComeAfterTheDelayOnceAStayAndGoOverEachBackground) {
    EXPECT_EQ(Timer1().interval(), 800);
    const int height = get("SSTab1").height();
    for (const char* background : {"Frame1", "Label32", "SSTab1", "tab_1", "window"}) {
        move_over("carico_1");
        EXPECT_FALSE(shown());
        tick();
        EXPECT_TRUE(shown());
        EXPECT_EQ(text("Label25"),
                  "Il carico agisce in direzione verticale ed è riferito alla proiezione orizzontale della "
                  "superficie della copertura. Considerare la più gravosa delle condizioni sopra riportate.");
        EXPECT_EQ(get("SSTab1").height(), height) << "the layout does not jump";

        move_over(background, background == std::string_view("window") ? QPoint(2, 300) : bottom(background));
        EXPECT_FALSE(shown()) << background;
        EXPECT_FALSE(Timer1().isActive()) << background;
    }
}

TEST_F(HintsTest, NeighbourReplacesTheTextWithoutHidingTheLabelAndOnlyTheBackgroundsCancel) {
    move_over("spor_1");
    tick();
    move_over("asinput");
    EXPECT_TRUE(shown());
    move_over("Chiudi");
    tick();
    EXPECT_EQ(text("Label25"),
              "Quota del suolo sul livello del mare nel sito di realizzazione dell' edificio, ininfluente se "
              "minore di 200 m.");
}

}  // namespace
}  // namespace coltre
