#include "site/altitude_check.h"
#include "tests/ui/window_test.h"
#include "ui/casipart.h"
#include "ui/place_finder.h"
#include "ui/table_window.h"

namespace coltre {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// The rows of a table as texts, cells separated by "|".
std::vector<std::string> rows(const QAbstractItemView& table) {
    std::vector<std::string> texts;
    const QAbstractItemModel& model = *table.model();
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells += model.index(row, column).data().toString();
        texts.push_back(cells.join('|').toStdString());
    }
    return texts;
}

class SideWindowsTest : public MainWindowTest {
  protected:
    /// Opens a window by its key.
    template <typename Window>
    Window& open(Qt::Key key) {
        QApplication::setActiveWindow(&window);
        QTest::keyClick(&window, key, Qt::ControlModifier);
        return *open_window<Window>();
    }
    static void search(PlaceFinder& finder, const char* typed) {
        auto& field = control<QLineEdit>(finder, "cerca");
        field.selectAll();
        QTest::keyClicks(&field, typed);
    }
    static std::string heading(TableWindow& table) {
        return control<QLabel>(table, "intestazione").text().toStdString();
    }
};

TEST_F(SideWindowsTest, EnterChoosesThePlaceThatIsFound) {
    repair_altitude_file(directory.text());
    type("TextCTermico", "2");
    auto& finder = open<PlaceFinder>(Qt::Key_F);
    auto& hits = control<QTableView>(finder, "comuni");
    search(finder, "monza");
    EXPECT_THAT(rows(hits), ElementsAre("Monza|Milano|Zona I Mediterranea|162|3,0000|oggi in provincia MB",
                                        "Monzambano|Mantova|Zona II|88|2,0000|"));
    QTest::keyClick(&control(finder, "cerca"), Qt::Key_Down);
    QTest::keyClick(&hits, Qt::Key_Return);
    EXPECT_FALSE(finder.isVisible());
    EXPECT_EQ(list("comuneinput").currentText(), "Monzambano");
    EXPECT_EQ(field("asinput"), "88");
    EXPECT_EQ(program.cells.zone, 2);

    // The same place once more brings its altitude back.
    type("asinput", "100");
    open<PlaceFinder>(Qt::Key_F);
    search(finder, "monzamb");
    QTest::keyClick(&control(finder, "cerca"), Qt::Key_Return);
    EXPECT_EQ(field("asinput"), "88");
}

TEST_F(SideWindowsTest, ProvinceThatCannotBeReadIsNotChosen) {
    auto& finder = open<PlaceFinder>(Qt::Key_F);
    search(finder, "bassano del grappa");
    dialogs.expect(Icon::warning,
                   "La provincia Vicenza non si legge dal file altitudini.txt.\rRiparare prima il file: menu "
                   "Strumenti, «Verifica e ripara altitudini.txt».");
    QTest::keyClick(&control(finder, "cerca"), Qt::Key_Return);
    EXPECT_EQ(dialogs.ended, 0);
    EXPECT_EQ(list("regione").currentText(), "Piemonte");
}

TEST_F(SideWindowsTest, MarkedPlacesAreComparedForTheOpenTab) {
    auto& finder = open<PlaceFinder>(Qt::Key_F);
    search(finder, "monzambano");
    QTest::keyClick(&control(finder, "comuni"), Qt::Key_Space);
    search(finder, "torino");
    QTest::keyClick(&control(finder, "comuni"), Qt::Key_Space);
    control<QPushButton>(finder, "confronta").click();
    auto& table = *open_window<TableWindow>();
    EXPECT_THAT(rows(control<QTableWidget>(table, "tabella")),
                ElementsAre("Torino|Torino|Zona I Alpina|239|1,5398|1,2318",
                            "Monzambano|Mantova|Zona II|88|1,0000|0,8000"));
    type("inputalfa", "60");
    choose_tab(1);
    EXPECT_EQ(heading(table), "Copertura a due falde: dal sito più gravoso");
    control<QPushButton>(table, "copia").click();
    EXPECT_THAT(QApplication::clipboard()->text().toStdString(),
                HasSubstr("\tqs max [kN/m²]\nTorino\tTorino\tZona I Alpina\t239\t1,5398\t1,2318\n"));
}

TEST_F(SideWindowsTest, WhatIfFollowsTheCalculationOnShow) {
    auto& table = open<TableWindow>(Qt::Key_D);
    const auto& cells = control<QTableWidget>(table, "tabella");
    EXPECT_EQ(heading(table), "Copertura ad una falda: qs max = 1,2000 kN/m²");
    type("asinput", "239");
    EXPECT_EQ(heading(table), "Copertura ad una falda: qs max = 1,2318 kN/m²");
    EXPECT_TRUE(control(table, "diagramma").isVisible());
    EXPECT_EQ(rows(cells)[1], "altitudine 289 m (+ 50 m)|1,2872|+4,5 %");
    type("TextCTermico", "1e999");
    EXPECT_EQ(heading(table), "Un dato del calcolo non è un numero: i carichi non si calcolano.");
    type("TextCTermico", "1");

    click("Bottcpart");
    auto& special_cases = *open_window<casipart>();
    QApplication::setActiveWindow(&special_cases);
    EXPECT_THAT(heading(table), HasSubstr("qs2 max = "));
    control<QTabWidget>(special_cases, "cartelle").setCurrentIndex(2);
    EXPECT_THAT(heading(table), HasSubstr("Fs max = "));
    EXPECT_FALSE(control(table, "diagramma").isVisible()) << "the altitude plays no part";
}

}  // namespace
}  // namespace coltre
