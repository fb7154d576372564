#include "calculate/Calcola.h"
#include "tests/ui/window_test.h"
#include "version/maker.h"

namespace coltre {
namespace {

using testing::Each;
using testing::ElementsAre;

/// Zone I Alpina at sea level: qsk = 1.5. Overhang loads of less than 3 kN/m2 are qs^3 / 3.
class MainCalculation : public MainWindowTest {
  protected:
    /// Whether the sketch says that its numbers belong to other entries.
    bool is_pending(const char* sketch) { return get<SketchWidget>(sketch).drawing().pending; }
    bool is_grey(const char* label) { return get(label).foregroundRole() == QPalette::PlaceholderText; }
};

TEST_F(MainCalculation, EachFamilyShowsItsCellsAlone) {
    click("Calcola");
    EXPECT_EQ(text("caricosuolo"), " 1.5");
    EXPECT_EQ(text("carico_1") + text("spor_1"), " 1.2 0.576");
    EXPECT_THAT(texts("carico_", {2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13}), Each("–"));

    choose_tab(1);
    type({{"inputalfa1", "15"}, {"inputalfa2", "40"}});  // mu1 = 0.5333
    click("Calcola");
    EXPECT_THAT(texts("carico_", {2, 3, 4, 5, 6, 7}),
                ElementsAre(" 1.2", " 0.8", " 0.6", " 0.8", " 1.2", " 0.4"));
    EXPECT_THAT(texts("spor_", {2, 3, 4, 5}), ElementsAre(" 0.576", " 0.072", " 0.171", " 0.021"));
    EXPECT_THAT(texts("carico_", {8, 9, 10, 11, 12, 13}), Each("–"));

    choose_tab(2);
    type({{"inputalfa3", "20"}, {"inputalfa4", "40"}});
    click("Calcola");
    EXPECT_THAT(texts("carico_", {8, 9, 10}), ElementsAre(" 1.2", " 2.4", " 0.8")) << "valley in the middle";
    EXPECT_THAT(texts("spor_", {8, 9, 10}), Each("–"));

    // A stop after the widths shows them alone, any other leaves every label as it was.
    choose_tab(3);
    type("TextCTermico", "0");
    dialogs.expect_stop("divisione per zero.\rNon si può calcolare qe_4a.\rIl carico neve al suolo qsk è 0.");
    click("Calcola");
    EXPECT_EQ(text("L1output") + text("L2output"), " 12.56 3.14 [m]");
    EXPECT_EQ(text("carico_11"), "–");
    EXPECT_EQ(text("caricosuolo"), " 1.5");
    type({{"TextCTermico", "1.0"}, {"Lcopcil", "20"}, {"hcopcil", "1"}});  // R = 50.5, mu3 = 0.7
    click("Calcola");
    type({{"hcopcil", "10.01"}, {"asinput", "1000"}});
    dialogs.expect(Icon::warning, "Dimensioni copertura non congruenti");
    click("Calcola");
    EXPECT_EQ(text("L1output") + text("L2output") + text("caricosuolo"), " 87.47 21.87 [m] 1.5");
    EXPECT_THAT(texts("carico_", {11, 12, 13}), ElementsAre(" 1.2", " 0.525", " 1.05"));
    EXPECT_THAT(texts("spor_", {8, 9, 10}), ElementsAre(" 0.576", " 0.048", " 0.386"));
}

TEST_F(MainCalculation, HighSiteIsToldAndShows1500ThoughThisCalculationUsesWhatWasTyped) {
    type("asinput", "1600");
    dialogs.expect(Icon::information,
                   "<Per altitudini superiori a 1500 m sul livello del mare si dovrà fare riferimento\r"
                   "alle condizioni locali di clima e di esposizione utilizzando comunque valori di\r"
                   "carico neve non inferiori a quelli previsti per 1500 m.>\r(Circ. 4 luglio 1996)");
    click("Calcola");
    EXPECT_EQ(field("asinput"), " 1500");
    EXPECT_TRUE(is_pending("sketch_1")) << "the numbers are not those for 1500 m";
    EXPECT_EQ(text("caricosuolo"), " 8.1042");  // 1.39 (1 + (1600 / 728)^2)
    click("Calcola");
    EXPECT_EQ(text("caricosuolo"), " 7.2911");
}

TEST_F(MainCalculation, CoefficientsAndUnitsAreReadFromTheirControls) {
    list("ComboEsp").setCurrentIndex(2);
    type("TextCTermico", "0.8");
    click("Check1Box");
    EXPECT_TRUE(get("udmcombo").isEnabled());
    list("udmcombo").setCurrentIndex(1);
    dialogs.expect(Icon::none, "Creazione della relazione " + directory.text() + "\\coltre.txt effettuata");
    click("Calcola");
    EXPECT_EQ(text("caricosuolo"), " 1.32") << "labels stay in kN and m";
    EXPECT_EQ(program.cells.unit_system, 2);
    EXPECT_TRUE(std::filesystem::exists(directory.path() / "coltre.txt"));
}

TEST_F(MainCalculation, SketchFollowsWhatIsTypedAndCarriesTheLabels) {
    choose_tab(3);
    auto& sketch = get<SketchWidget>("sketch_4");
    const QImage before = sketch.grab().toImage();
    type("hcopcil", "4");
    EXPECT_NE(sketch.grab().toImage(), before);
    click("Calcola");
    EXPECT_EQ(sketch.findChildren<QLabel*>().size(), 8);
    type("hcopcil", "abc");
    EXPECT_TRUE(sketch.drawing().neutral);
}

TEST_F(MainCalculation, EnterInAnyFieldCalculates) {
    for (const char* name : {"regione", "asinput", "TextCTermico", "inputalfa", "Check1Box", "SSTab1"}) {
        get<QLabel>("carico_1").setText("");
        get(name).setFocus();
        QTest::keyClick(&get(name), Qt::Key_Return);
        EXPECT_EQ(text("carico_1"), " 1.2") << name;
    }
    get("Info").setFocus();
    dialogs.expect(Icon::information, maker_text());
    QTest::keyClick(&get("Info"), Qt::Key_Return);
}

TEST_F(MainCalculation, SketchSaysWhenItsNumbersAreOfOtherEntries) {
    for (int tab = 0; const auto& [entry, sketch] : {std::pair("inputalfa", "sketch_1"),
                                                     {"inputalfa1", "sketch_2"},
                                                     {"inputalfa3", "sketch_3"},
                                                     {"Lcopcil", "sketch_4"}}) {
        choose_tab(tab++);
        type(entry, "20");
        EXPECT_FALSE(is_pending(sketch)) << "there are no numbers yet";
        click("Calcola");
        EXPECT_FALSE(is_pending(sketch));
        type(entry, "25");
        EXPECT_TRUE(is_pending(sketch));
    }
    const std::function<void()> site_changes[] = {
        [this] { type("asinput", "300"); },
        [this] { type("TextCTermico", "1.1"); },
        [this] { list("ComboEsp").setCurrentIndex(2); },
        [this] { list("Provinciainput").setCurrentText("Cuneo"); },
    };
    for (const auto& change : site_changes) {
        click("Calcola");
        EXPECT_FALSE(is_pending("sketch_4") || is_grey("caricosuolo"));
        change();
        EXPECT_TRUE(is_pending("sketch_4") && is_grey("caricosuolo"));
    }
    click("Calcola");
    type("TextCTermico", "1.2");
    type("TextCTermico", "1.1");
    EXPECT_FALSE(is_pending("sketch_4") || is_grey("caricosuolo"))
        << "the entries are the calculated ones again";
}

TEST_F(MainCalculation, NotesSayWhatIsNotAsItLooks) {
    CalculationTab tab(Kind::two_pitches, window, dialogs);
    get<QLineEdit>("inputalfa2").setText("22,5");
    get<QLineEdit>("TextCTermico").setText("1,1");
    EXPECT_THAT(tab.notes(window.site()),
                ElementsAre("sito non scelto: Zona I Alpina", "Ct letto come 1", "α2 letto come 22"));
    list("Provinciainput").setCurrentText("Cuneo");
    type({{"inputalfa2", "22,5"}, {"TextCTermico", "1,1"}, {"asinput", "12 m"}});
    EXPECT_THAT(tab.notes(window.site()), ElementsAre("altitudine: letto come 12"));
}

TEST_F(MainCalculation, BoxesFieldsAndLabelsComeInTheirOrder) {
    choose_tab(3);
    click("Check1Box");
    type("asinput", "1600");
    std::vector<std::string> seen;
    dialogs.while_shown = [&] {
        seen.push_back(field("asinput") + "|" + text("L1output") + text("L2output") + "|" +
                       text("caricosuolo"));
    };
    dialogs.expect(Icon::information, altitude_notice({.asinput = "1600"})->message.text);
    dialogs.expect(Icon::none, "Creazione della relazione " + directory.text() + "\\coltre.txt effettuata");
    click("Calcola");
    EXPECT_THAT(seen, ElementsAre("1600|––|–", " 1500| 12.56 3.14 [m]|–"));
    EXPECT_EQ(text("caricosuolo"), " 8.1042");

    seen.clear();
    type({{"TextCTermico", "0"}, {"Lcopcil", "20"}});  // R = 26, L1 = 45.03
    dialogs.expect_stop("divisione per zero.\rNon si può calcolare qe_4a.\rIl carico neve al suolo qsk è 0.");
    click("Calcola");
    EXPECT_THAT(seen, ElementsAre(" 1500| 45.03 11.26 [m]| 8.1042"));
}

}  // namespace
}  // namespace coltre
