#include "tests/support/suite_tree.h"
#include "tests/ui/window_test.h"
#include "ui/number_field.h"

namespace coltre {
namespace {

using Start = MainWindowTest;

/// Its entries and which is selected.
std::string items(const QComboBox& list) {
    QString texts;
    for (int i = 0; i < list.count(); ++i)
        texts += list.itemText(i) + "; ";
    return (texts + list.currentText()).toStdString();
}

TEST_F(Start, StandAloneShowsTheDesignedWindow) {
    EXPECT_EQ(window.windowTitle(), "Coltre - ARCOVIA 15");
    EXPECT_EQ(items(list("udmcombo")), "kN , m; Kgf , m; kgf , cm; kN , m");
    EXPECT_EQ(items(list("ComboEsp")), "0.9; 1.0; 1.1; 1.0");
    EXPECT_EQ(list("regione").count(), 28);
    EXPECT_EQ(list("regione").currentText(), "Piemonte");
    // The event of the selection has filled the provinces, and chosen none.
    EXPECT_EQ(items(list("Provinciainput")),
              "Torino; Alessandria; Asti; Biella; Cuneo; Novara; Verbania; Vercelli; ");
    EXPECT_EQ(list("comuneinput").count(), 0);
    EXPECT_EQ(text("Zonalabel"), "(Zona 1)");
    EXPECT_EQ(field("TextCTermico"), "1.0");
    EXPECT_EQ(text("OutputPerRit"), "50");
    EXPECT_FALSE(get<QCheckBox>("Check1Box").isChecked());
    EXPECT_FALSE(get("udmcombo").isEnabled());
    EXPECT_TRUE(std::filesystem::is_empty(directory.path())) << "nothing is written at the start";
}

TEST_F(Start, WindowFitsASmallScreenAndItsMnemonicsAreUnambiguous) {
    EXPECT_EQ(window.minimumSizeHint().boundedTo(QSize(1024, 700)), window.minimumSizeHint());
    auto& tabs = get<QTabWidget>("SSTab1");
    for (int tab = 0; tab < tabs.count(); ++tab) {
        choose_tab(tab);
        QStringList captions;
        for (int i = 0; i < tabs.count(); ++i)
            captions += tabs.tabText(i);
        for (const QLabel* label : window.findChildren<QLabel*>())
            if (label->buddy() && label->isVisible()) captions += label->text();
        for (const QAbstractButton* button : window.findChildren<QAbstractButton*>())
            if (button->isVisible()) captions += button->text();
        std::set<QString> keys;
        for (const QString& caption : captions) {
            const QKeySequence key = QKeySequence::mnemonic(caption);
            EXPECT_TRUE(key.isEmpty() || keys.insert(key.toString()).second) << caption.toStdString();
        }
        EXPECT_GE(keys.size(), 18U);
    }
}

TEST_F(Start, NothingIsOutOfReachInASmallWindowOrForAScreenReader) {
    const auto& area = *window.findChild<QScrollArea*>();
    EXPECT_FALSE(area.verticalScrollBar()->isVisible()) << "nothing scrolls at an ordinary size";
    window.resize(496, 302);  // of a screen of 1024 x 700 at twice the size
    QApplication::processEvents();
    auto& Chiudi = get("Chiudi");
    get("Calcola").setFocus();
    for (int i = 0; i < 2; ++i)
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(window.focusWidget(), &Chiudi) << window.focusWidget()->objectName().toStdString();
    EXPECT_EQ(Chiudi.visibleRegion().boundingRect(), Chiudi.rect());

    const auto said = [](QWidget& widget) {
        QAccessibleInterface* const read = QAccessible::queryAccessibleInterface(&widget);
        return std::pair(read->role(), read->text(QAccessible::Name).toStdString());
    };
    EXPECT_EQ(said(window), std::pair(QAccessible::Window, std::string("Coltre - ARCOVIA 15")));
    EXPECT_EQ(said(get("comuneinput")), std::pair(QAccessible::ComboBox, std::string("Comune")));
    EXPECT_EQ(said(get("sketch_2")),
              std::pair(QAccessible::Graphic, std::string("Schizzo: copertura a due falde")));
}

TEST_F(Start, CommaBecomesAPointAndUnclearTextSaysHowItIsRead) {
    auto& Ct = get<NumberField>("TextCTermico");
    type("TextCTermico", "1,5");
    EXPECT_EQ(Ct.text(), "1.5");
    const auto paste = [&Ct](const char* text) {
        QApplication::clipboard()->setText(text);
        Ct.selectAll();
        Ct.paste();
        return Ct.text().toStdString();
    };
    for (const char* text : {"1,2,3", "1.000,5", ",5", "1,m"})
        EXPECT_EQ(paste(text), text) << "is no decimal comma for certain";
    Ct.setText("1,5");
    EXPECT_TRUE(Ct.is_marked());
    EXPECT_EQ(Ct.accessibleDescription(), "letto come 1");
    type("TextCTermico", " 1.5 ");
    EXPECT_FALSE(Ct.is_marked());
}

class SuiteStart : public MainWindowTest {
  protected:
    void SetUp() override {}
    SuiteTree suite;
};

TEST_F(SuiteStart, ShowsTheJobAndSelectsKgfAndCm) {
    start("|autonomo=1" + suite.command_line());
    EXPECT_EQ(window.windowTitle().toStdString(), "Coltre - ARCOVIA 15 - " + suite.jobs() + "\\job001");
    EXPECT_EQ(list("udmcombo").currentText(), "kgf , cm");
}

}  // namespace
}  // namespace coltre
