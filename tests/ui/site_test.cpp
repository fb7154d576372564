#include "tests/ui/window_test.h"

namespace coltre {
namespace {

class Site : public MainWindowTest {
  protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        list("Provinciainput").setCurrentText("Torino");
    }
    QComboBox& municipalities = control<QComboBox>(window, "comuneinput");
};

TEST_F(Site, ProvinceShowsItsZoneAndTheAltitudeOfItsFirstMunicipality) {
    EXPECT_EQ(field("asinput"), "239");
    list("Provinciainput").setCurrentText("Alessandria");
    EXPECT_EQ(text("Zonalabel"), "(Zona I Mediterranea)");
    EXPECT_EQ(program.cells.zone, 1);
    EXPECT_EQ(municipalities.currentIndex(), 0);
    EXPECT_EQ(municipalities.currentText(), "Alessandria");
    EXPECT_EQ(field("asinput"), "95");
}

TEST_F(Site, RegionChangesTheProvincesAlone) {
    municipalities.setCurrentText("Sestriere");
    list("regione").setCurrentText("Umbria");
    EXPECT_EQ(list("Provinciainput").count(), 2);
    EXPECT_EQ(list("Provinciainput").currentIndex(), -1);
    EXPECT_EQ(municipalities.currentText(), "Sestriere");
    EXPECT_FALSE(municipalities.isEnabled()) << "they are of no province that is chosen";
    EXPECT_EQ(field("asinput"), "2035");
    EXPECT_EQ(text("Zonalabel"), "(Zona I Alpina)");
    EXPECT_EQ(program.cells.zone, 0);
    list("Provinciainput").setCurrentText("Terni");
    EXPECT_TRUE(municipalities.isEnabled());
}

TEST_F(Site, SecondReadErrorEndsTheProgramAndLeavesTheWindowAsItIs) {
    list("regione").setCurrentText("Veneto");
    dialogs.expect(Icon::error, "Errore in lettura del file altitudine.txt .");
    list("Provinciainput").setCurrentText("Vicenza");
    EXPECT_EQ(dialogs.ended, 1);
    EXPECT_EQ(field("asinput"), "239");
}

TEST_F(Site, ClosedListJumpsToWhatIsTyped) {
    municipalities.setFocus();
    QTest::keyClicks(&municipalities, "agli");
    QTest::sendKeyEvent(QTest::Click, &municipalities, Qt::Key_Egrave, "è", Qt::NoModifier);
    EXPECT_EQ(municipalities.currentText(), "Aglie'");
    EXPECT_EQ(field("asinput"), "315");
    QTest::qWait(1100);  // what was typed is forgotten
    QTest::keyClicks(&municipalities, "SESTR");
    EXPECT_EQ(municipalities.currentText(), "Sestriere");
}

TEST_F(Site, WheelOverAListChangesNothing) {
    for (const char* name : {"regione", "Provinciainput", "comuneinput", "ComboEsp", "udmcombo"}) {
        QComboBox& under_pointer = list(name);
        const QString before = under_pointer.currentText();
        const QPointF middle = under_pointer.rect().center();
        QWheelEvent turn(middle, under_pointer.mapToGlobal(middle), {}, QPoint(0, -120), Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&under_pointer, &turn);
        EXPECT_EQ(under_pointer.currentText(), before) << name;
    }
}

}  // namespace
}  // namespace coltre
