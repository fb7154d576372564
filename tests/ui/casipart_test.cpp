#include "ui/casipart.h"

#include "platform/files.h"
#include "tests/ui/window_test.h"

namespace coltre {
namespace {

using testing::HasSubstr;

using Texts = std::map<std::string, std::string>;

/// Zone II at 200 m: G = 1 kN/m2 unless a test changes the site.
class CasipartTest : public WindowTest {
  protected:
    void SetUp() override {
        program.cells.zone = 2;
        program.directories.WorkDirectory = directory.text();
        open();
    }
    void TearDown() override {
        if (tested) close();
    }
    void open() {
        tested = new casipart(
            program, dialogs,
            [this] {
                return Inputs{site, program.cells.zone, program.cells.return_period_factor};
            },
            [this] { shown_ground_loads.push_back(program.cells.qsk); });
        tested->show();
        tested->activateWindow();  // without a window manager nobody else does
        ASSERT_TRUE(QTest::qWaitForWindowActive(tested));
    }
    void close() {
        click("Chiudi2");
        ASSERT_TRUE(QTest::qWaitFor([this] { return tested.isNull(); })) << "the window is still there";
    }
    void select_page(int page) {
        QTabBar* tabs = get<QTabWidget>("cartelle").tabBar();
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(page).center());
    }
    void calculate(int page) {
        select_page(page);
        click("Calcola2");
    }
    /// The texts of all result labels that show a result.
    Texts results() {
        Texts texts;
        for (const char* name : {"carico_14", "carico_15", "lsoutput", "carico_16", "carico_17", "ls2outputA",
                                 "ls2outputB", "Fsoutput"})
            if (text(name) != "–") texts[name] = text(name);
        return texts;
    }
    std::string report() {
        return read_file(directory.text() + "\\coltrecasipart.txt").value_or("no report");
    }

    Fields site{.asinput = "200", .ComboEsp = "1.0", .TextCTermico = "1.0"};
    std::vector<double> shown_ground_loads;
};

TEST_F(CasipartTest, OpensAnewWithTheDesignedEntriesInTheSuiteWithItsUnit) {
    type("h2input", "7");
    click("Check1Box");
    close();
    program.StandaloneFlag = false;
    program.unit_setting = "3";
    open();
    EXPECT_EQ(tested->windowTitle(), "Coltre - Casi particolari");
    const Texts entries{{"h2input", "2"},    {"b1input", "3"},    {"b2input", "5"}, {"deltainput", "10"},
                        {"h3input", "2.30"}, {"qsinput", "1.28"}, {"biinput", "5"}, {"angoloinput", "10"}};
    for (const auto& [name, entry] : entries)
        EXPECT_EQ(field(name.c_str()), entry) << name;
    EXPECT_EQ(results(), Texts{});
    EXPECT_EQ(list("udmcombo").currentText(), "kgf , cm");

    // The selection counts though the box is clear and the selector disabled.
    EXPECT_FALSE(get("udmcombo").isEnabled());
    click("Calcola2");
    EXPECT_EQ(program.cells.unit_system, 3);
    EXPECT_TRUE(get("lsoutput").isHidden()) << "the drift is cut";
    EXPECT_EQ(report(), "no report");
}

TEST_F(CasipartTest, NoteFollowsThePage) {
    EXPECT_THAT(text("Label78"), testing::StartsWith("<In corrisponenza di bruschi"));
    select_page(1);
    EXPECT_FALSE(get("Label78").isVisible());
    select_page(2);
    EXPECT_THAT(text("Label78"), HasSubstr("dell' ostacolo.> (Circ. 4 luglio 96 - C.6.6)"));
    QTest::keyClick(tested, Qt::Key_D, Qt::AltModifier);
    EXPECT_THAT(text("Label78"), HasSubstr("qui riportata> (Circ. 4 luglio 96 - C.6.4)"));
}

// Decimal commas are read. (300 / 481)^2 = 0.3890025, so G = 0.85 * 1.3890025 = 1.1806521 and 0.8 G =
// 0.9445217 kN/m2. Level change: (b1 + b2) / 2h = 4.5, 2h / G = 5.65, so mu2 = 4.0, qs2 = 4.7226084; ls = 2h
// = 6.6666 m. Wall, at 200 m so that no load is that of the other page: G = 1, mu2 = 2.0, qs2 = 2, qs1 = 0.8;
// ls = 8.2468 m. Snow guard: 1.28 * 5 * sin(10 deg) = 6.4 * 0.1736482 = 1.1113483 kN/m.
TEST_F(CasipartTest, ShowsTheCellsOfTheSelectedPageAlone) {
    site.asinput = "300";
    Texts expected{{"carico_14", " 4.7226"}, {"carico_15", " 0.9445"}, {"lsoutput", " 6.67"}};
    type({{"h2input", "3,3333"}, {"b1input", "10,0"}, {"b2input", "20,0"}, {"deltainput", "1,5"}});
    click("Calcola2");
    EXPECT_EQ(results(), expected);

    site.asinput = "200";
    type("h3input", "4,1234");
    calculate(1);
    expected.merge(
        Texts{{"carico_16", " 0.8"}, {"carico_17", " 2"}, {"ls2outputA", " 8.25"}, {"ls2outputB", " 8.25"}});
    EXPECT_EQ(results(), expected);

    site = {.asinput = "100", .ComboEsp = "1.1", .TextCTermico = "0.9"};
    program.cells.return_period_factor = 0.5;
    select_page(2);
    EXPECT_EQ(results(), expected) << "a page change calculates nothing";
    click("Calcola2");
    expected.merge(Texts{{"Fsoutput", " 1.111"}});
    EXPECT_EQ(results(), expected);
    ASSERT_EQ(shown_ground_loads.size(), 3U);
    EXPECT_DOUBLE_EQ(shown_ground_loads[2], 0.495) << "in the shared cell before it is shown";

    type({{"angoloinput", "30"}, {"qsinput", "1,5"}});  // Fs = qs b / 2
    click("Calcola2");
    EXPECT_EQ(text("Fsoutput"), " 3.75");
}

TEST_F(CasipartTest, AnEarlyStopIsToldAndLeavesEveryLabel) {
    for (const int page : {0, 1, 2})
        calculate(page);
    const Texts before = results();
    site.asinput = "900";
    type("h3input", "2;5");
    EXPECT_EQ(get("h3input").accessibleDescription(), "non è un numero");
    dialogs.expect_stop("conversione non valida.\rIl valore di «h» non è un numero: «2;5».");
    calculate(1);
    type("h3input", "2");
    site.ComboEsp = "0";
    dialogs.expect_stop("divisione per zero.\rNon si può calcolare mu2.\rIl carico neve al suolo qsk è 0.");
    click("Calcola2");
    EXPECT_EQ(results(), before);
    EXPECT_EQ(shown_ground_loads.size(), 3U);

    // The window stays usable, and the wall's half-computed cells are not shown with another page's results.
    site.ComboEsp = "1.0";
    calculate(2);
    EXPECT_EQ(shown_ground_loads.size(), 4U);
    EXPECT_EQ(results(), before);
}

TEST_F(CasipartTest, TabKeyReachesEveryControlAndEnterCalculatesAtEach) {
    type("b2input", "8");  // the drift is not cut: its length has a label
    get("h2input").setFocus();
    std::size_t calculations = 0;
    for (const char* name : {"h2input", "b1input", "b2input", "deltainput", "carico_14", "carico_15",
                             "lsoutput", "Check1Box", "Calcola2", "Chiudi2"}) {
        ASSERT_EQ(tested->focusWidget(), &get(name)) << name;
        QTest::keyClick(&get(name), calculations % 2 == 0 ? Qt::Key_Return : Qt::Key_Enter);
        if (name == std::string_view("Chiudi2")) break;
        EXPECT_EQ(shown_ground_loads.size(), ++calculations) << name;
        QTest::keyClick(&get(name), Qt::Key_Tab);
    }
    EXPECT_TRUE(QTest::qWaitFor([this] { return tested.isNull(); })) << "the window is still there";
    EXPECT_EQ(shown_ground_loads.size(), calculations);
}

TEST_F(CasipartTest, ReportHoldsTheSelectedCaseAndIsConfirmedAfterTheResultsAreShown) {
    std::string shown_at_the_message;
    dialogs.while_shown = [&] { shown_at_the_message = text("carico_17"); };
    click("Check1Box");
    QTest::keyClick(&get("udmcombo"), Qt::Key_Down);
    dialogs.expect(Icon::none, "Creazione della relazione coltrecasipart.txt effettuata");
    calculate(1);
    EXPECT_EQ(shown_at_the_message, " 2");
    EXPECT_THAT(report(),
                testing::AllOf(HasSubstr("m ; Kgf/mq ; Kgf/m\r\n"), HasSubstr("CONTRO PARETI VERTICALI\r\n"),
                               testing::Not(HasSubstr("DISCONTINUITA'"))));

    // A directory that cannot be written leaves no result either.
    program.directories.WorkDirectory += "\\missing";
    const std::string name = program.directories.WorkDirectory + "\\coltrecasipart.txt";
    dialogs.expect(Icon::error, "Impossibile scrivere il file " + name + ": la cartella non esiste.");
    calculate(2);
    EXPECT_EQ(text("Fsoutput"), "–");
}

}  // namespace
}  // namespace coltre
