#include <gmock/gmock.h>

#include <QComboBox>
#include <QLineEdit>
#include <optional>
#include <tuple>

#include "platform/files.h"
#include "tests/support/temporary_directory.h"
#include "tests/ui/casipart_fixture.h"

namespace coltre {
namespace {

using testing::HasSubstr;
using testing::Not;

TEST_F(CasipartTest, OpensAnewWithTheDesignedEntries) {
    type("h2input", "7");
    click("Check1Box");
    click("Chiudi2");
    wait_until_closed();
    open();

    EXPECT_EQ(window->windowTitle(), "Coltre - Casi particolari");
    EXPECT_FALSE(window->isModal());
    const std::map<const char*, const char*> entries{
        {"h2input", "2"},    {"b1input", "3"},    {"b2input", "5"}, {"deltainput", "10"},
        {"h3input", "2.30"}, {"qsinput", "1.28"}, {"biinput", "5"}, {"angoloinput", "10"},
    };
    for (const auto& [field, text] : entries)
        EXPECT_EQ(find<QLineEdit>(field).text(), text) << field;
    EXPECT_EQ(results(), Texts{});
    EXPECT_FALSE(find("udmcombo").isEnabled());
    EXPECT_EQ(find<QComboBox>("udmcombo").currentText(), "kN , m");
}

TEST_F(CasipartTest, NoteFollowsThePage) {
    const auto is_note = [](const char* end) {
        return testing::AllOf(testing::StartsWith("<"), HasSubstr(end));
    };
    EXPECT_THAT(text_of("Label78"), is_note("<In corrisponenza di bruschi"));
    const int pages_height = find("cartelle").height();

    select_page(1);
    EXPECT_FALSE(find("Label78").isVisible());
    select_page(2);
    EXPECT_TRUE(find("Label78").isVisible());
    EXPECT_THAT(text_of("Label78"), is_note("dell' ostacolo.> (Circ. 4 luglio 96 - C.6.6)"));
    QTest::keyClick(window, Qt::Key_D, Qt::AltModifier);
    EXPECT_TRUE(find("Label78").isVisible());
    EXPECT_THAT(text_of("Label78"), is_note("qui riportata> (Circ. 4 luglio 96 - C.6.4)"));

    QCoreApplication::processEvents();
    EXPECT_EQ(find("cartelle").height(), pages_height) << "the pages moved";
}

TEST_F(CasipartTest, ReportSwitchEnablesTheUnits) {
    click("Check1Box");
    EXPECT_TRUE(find("udmcombo").isEnabled());
    click("Check1Box");
    EXPECT_FALSE(find("udmcombo").isEnabled());
}

TEST_F(CasipartTest, OpensInTheSuiteWithItsUnitAndSharesTheCode) {
    click("Chiudi2");
    wait_until_closed();
    program.StandaloneFlag = false;
    program.unit_setting = "3";
    open();
    EXPECT_EQ(find<QComboBox>("udmcombo").currentText(), "kgf , cm");

    // The selection counts though the box is clear and the selector disabled.
    click("Calcola2");
    EXPECT_EQ(program.cells.unit_system, 3);

    click("Check1Box");
    QTest::keyClick(&find("udmcombo"), Qt::Key_Up);
    click("Check1Box");
    click("Calcola2");
    EXPECT_EQ(program.cells.unit_system, 2);
}

// (300 / 481)^2 = 0.3890025, so G = 0.85 * 1.3890025 = 1.1806521 and 0.8 G = 0.9445217 kN/m2.
// Level change: (b1 + b2) / 2h = 4.5, 2h / G = 5.65, so mu2 = 4.0, qs2 = 4.7226084; ls = 2h = 6.6666 m.
// Wall, at 200 m so that no load is that of the other page: G = 1, mu2 = 2.0, qs2 = 2, qs1 = 0.8; ls = 8.2468
// m. Snow guard: 1.28 * 5 * sin(10 deg) = 6.4 * 0.1736482 = 1.1113483 kN/m.
TEST_F(CasipartTest, ShowsTheCellsOfTheSelectedPageAlone) {
    site.asinput = "300";
    Texts expected{{"carico_14", " 4.7226"}, {"carico_15", " 0.9445"}, {"lsoutput", " 6.67"}};
    type_level_change("3.3333", "10", "20", "30");
    click("Calcola2");
    EXPECT_EQ(results(), expected);

    site.asinput = "200";
    select_page(1);
    type("h3input", "4.1234");
    click("Calcola2");
    expected.merge(
        Texts{{"carico_16", " 0.8"}, {"carico_17", " 2"}, {"ls2outputA", " 8.25"}, {"ls2outputB", " 8.25"}});
    EXPECT_EQ(results(), expected);

    select_page(2);
    EXPECT_EQ(results(), expected) << "a page change calculates nothing";
    click("Calcola2");
    expected.merge(Texts{{"Fsoutput", " 1.111"}});
    EXPECT_EQ(results(), expected);
    EXPECT_EQ(shown_ground_loads.size(), 3U);
}

TEST_F(CasipartTest, LeavesItsGroundLoadInTheSharedCellBeforeItIsShown) {
    site = {.asinput = "100", .ComboEsp = "1.1", .TextCTermico = "0.9"};
    program.cells.return_period_factor = 0.5;
    program.cells.qsk = 9;
    select_page(2);
    click("Calcola2");
    ASSERT_EQ(shown_ground_loads.size(), 1U);
    EXPECT_DOUBLE_EQ(shown_ground_loads[0], 0.495);
}

// h = 1 m gives ls = 5 m, qs2 = 2.0 and qs1 = 0.8; a cut at 4 m raises qs1 to 0.8 + 1.2 / 5.
TEST_F(CasipartTest, HidesTheDriftLengthExactlyWhenItIsCut) {
    const std::vector<std::tuple<const char*, bool, const char*>> cases{
        {"5.001", true, " 0.8"}, {"5", false, " 0.8"}, {"4", false, " 1.04"}, {"6", true, " 0.8"}};
    for (const auto& [b2, visible, qs1] : cases) {
        SCOPED_TRACE(b2);
        type_level_change("1", "10", b2, "30");
        click("Calcola2");
        EXPECT_EQ(find("lsoutput").isVisible(), visible);
        EXPECT_EQ(text_of("carico_15"), qs1);
        EXPECT_EQ(text_of("carico_14"), " 2");
    }
}

TEST_F(CasipartTest, AnEarlyStopIsToldAndLeavesEveryLabel) {
    for (const int page : {0, 1, 2}) {
        select_page(page);
        click("Calcola2");
    }
    const Texts before = results();
    site.asinput = "900";

    const std::vector<std::tuple<int, const char*, const char*, const char*>> strict_fields{
        {0, "b1input", "b1", "3"},
        {0, "b2input", "b2", "5"},
        {0, "h2input", "h", "2"},
        {0, "deltainput", "alfa", "10"},
        {1, "h3input", "h", "2.30"}};
    for (const auto& [page, field, name, good] : strict_fields) {
        select_page(page);
        for (const char* bad : {"", "2;5"}) {
            type(field, bad);
            const std::string quoted = "«" + std::string(name) + "»";
            dialogs.expect_stop("conversione non valida.\r" +
                                (*bad == 0 ? "Il campo " + quoted + " è vuoto."
                                           : "Il testo scritto per " + quoted + " non è un numero: «2;5»."));
            click("Calcola2");
        }
        type(field, good);
    }
    site.ComboEsp = "0";
    dialogs.expect_stop("divisione per zero.\rNon si può calcolare mu2.\rIl carico neve al suolo qsk è 0.");
    click("Calcola2");

    EXPECT_EQ(results(), before);
    EXPECT_EQ(shown_ground_loads.size(), 3U);

    // The window stays usable, and the wall's half-computed cells are not shown with another page's results.
    site.ComboEsp = "1.0";
    select_page(2);
    click("Calcola2");
    EXPECT_EQ(shown_ground_loads.size(), 4U);
    EXPECT_EQ(results(), before);
}

TEST_F(CasipartTest, SnowGuardReadsLeniently) {
    select_page(2);
    type("angoloinput", "30");  // Fs = qs b / 2
    type("qsinput", "1,5");
    click("Calcola2");
    EXPECT_EQ(text_of("Fsoutput"), " 2.5");
    type("biinput", "");
    click("Calcola2");
    EXPECT_EQ(text_of("Fsoutput"), " 0");
}

TEST_F(CasipartTest, EnterCalculatesWhereverTheFocusIs) {
    const auto calculations = [this] { return shown_ground_loads.size(); };
    EXPECT_EQ(window->focusWidget(), &find("h2input"));
    QTest::keyClick(window->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(calculations(), 1U);
    for (const char* name : {"cartelle", "carico_14", "Check1Box", "Calcola2"}) {
        find(name).setFocus();
        QTest::keyClick(window->focusWidget(), Qt::Key_Enter);
    }
    EXPECT_EQ(calculations(), 5U);
    QTest::keyClick(window, Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return calculations() == 6; }));

    find("Chiudi2").setFocus();
    QTest::keyClick(window->focusWidget(), Qt::Key_Return);
    wait_until_closed();
    EXPECT_EQ(calculations(), 6U);
}

TEST_F(CasipartTest, EveryControlOfAPageIsReachedByTheTabKey) {
    const std::vector<const char*> order{"h2input",   "b1input",  "b2input",   "deltainput", "carico_14",
                                         "carico_15", "lsoutput", "Check1Box", "Calcola2",   "Chiudi2"};
    type("b2input", "8");  // the drift is not cut: its length has a label
    find(order.front()).setFocus();
    for (const char* name : order) {
        EXPECT_EQ(window->focusWidget(), &find(name)) << name;
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    }
}

class CasipartReport : public CasipartTest {
  protected:
    void SetUp() override {
        CasipartTest::SetUp();
        program.directories.WorkDirectory = work.text();
        click("Check1Box");
    }
    std::optional<std::string> report() { return read_file(work.text() + "\\coltrecasipart.txt"); }

    TemporaryDirectory work;
};

TEST_F(CasipartReport, HoldsTheSelectedCaseAndIsConfirmedAfterTheResultsAreShown) {
    const std::string confirmation = "Creazione della relazione coltrecasipart.txt effettuata";
    std::string shown_at_the_message;
    dialogs.while_shown = [&] { shown_at_the_message = text_of("carico_17"); };
    select_page(1);
    QTest::keyClick(&find("udmcombo"), Qt::Key_Down);
    dialogs.expect(Icon::none, confirmation);
    click("Calcola2");

    EXPECT_EQ(shown_at_the_message, " 2");
    EXPECT_THAT(report().value_or(""), HasSubstr("m ; Kgf/mq ; Kgf/m\r\n"));
    EXPECT_THAT(report().value_or(""), HasSubstr("ACCUMULO CONTRO PARETI VERTICALI\r\n"));
    EXPECT_THAT(report().value_or(""), Not(HasSubstr("DISCONTINUITA'")));

    select_page(2);
    type("angoloinput", "010,x");
    dialogs.expect(Icon::none, confirmation);
    click("Calcola2");
    EXPECT_THAT(report().value_or(""), HasSubstr(" = 010,x\r\n"));
    EXPECT_THAT(report().value_or(""), Not(HasSubstr("PARETI")));
}

TEST_F(CasipartTest, DecimalCommaOfTheUserIsReadWhereTheWholeTextMustBeANumber) {
    select_page(1);
    type("h3input", "3,25");
    click("Calcola2");
    EXPECT_EQ(text_of("ls2outputA"), " 6.5");
}

TEST_F(CasipartReport, IsNotWrittenWithTheBoxClear) {
    click("Check1Box");
    click("Calcola2");
    EXPECT_EQ(report(), std::nullopt);
}

TEST_F(CasipartReport, StopLeavesTheHeadingUnconfirmed) {
    type("h2input", "");
    dialogs.expect_stop("conversione non valida.\rIl campo «h» è vuoto.");
    click("Calcola2");
    EXPECT_THAT(report().value_or(""), testing::EndsWith("qsk (carico neve al suolo) = 1.\r\n\r\n"));
}

TEST_F(CasipartReport, TellsOfADirectoryThatCannotBeWritten) {
    program.directories.WorkDirectory += "\\missing";
    const std::string name = program.directories.WorkDirectory + "\\coltrecasipart.txt";
    dialogs.expect(Icon::error, "Impossibile scrivere il file " + name + ": la cartella non esiste.");
    click("Calcola2");
    EXPECT_EQ(results(), Texts{});
    EXPECT_TRUE(shown_ground_loads.empty());
}

}  // namespace
}  // namespace coltre
