#include <QPrinter>

#include "platform/files.h"
#include "tests/ui/window_test.h"
#include "ui/casipart.h"
#include "version/maker.h"
#include "version/version.h"

namespace coltre {
namespace {

using testing::EndsWith;
using testing::HasSubstr;

class MenusTest : public MainWindowTest {
  protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        menus().open_file = [this](const QUrl& url) {
            opened = url;
            return desktop_has_program;
        };
    }
    Menus& menus() { return *window.findChild<Menus*>(); }
    /// Chooses an entry of a window's menus by its text.
    static void choose(QWidget& in, const QString& text) {
        for (const QMenu* menu : in.findChildren<QMenu*>())
            for (QAction* action : menu->actions())
                if (action->text() == text) return action->trigger();
        ADD_FAILURE() << "no entry " << text.toStdString();
    }
    casipart& open_special_cases() {
        click("Bottcpart");
        return *open_window<casipart>();
    }

    QUrl opened;
    bool desktop_has_program = true;
};

TEST_F(MenusTest, OpenInBothWindowsByF10) {
    for (QWidget* const it : {static_cast<QWidget*>(&window), static_cast<QWidget*>(&open_special_cases())}) {
        SCOPED_TRACE(it->objectName().toStdString());
        QApplication::setActiveWindow(it);
        auto& bar = *it->findChild<QMenuBar*>();
        QTest::keyClick(it, Qt::Key_F10);
        EXPECT_EQ(bar.activeAction(), bar.actions().at(0));
        ASSERT_NE(QApplication::activePopupWidget(), nullptr);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QTest::keyClick(&bar, Qt::Key_Escape);
    }
}

TEST_F(MenusTest, ResultsAreCopiedAsTheyAreShownWithTheUsersDecimalSign) {
    dialogs.expect(Icon::error, "Non ci sono risultati da copiare: premere «Calcola».");
    choose(window, "Copia i risultati");
    click("Calcola");
    QTest::keyClick(&window, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    const QMimeData& copied = *QApplication::clipboard()->mimeData();
    EXPECT_EQ(copied.text(),
              "Carico neve al suolo qsk\t1,5\tkN/m²\n"
              "Carico neve sulla copertura, falda\t1,2\tkN/m²\n"
              "Carico della neve sporgente, falda\t0,576\tkN/m\n");
    EXPECT_THAT(copied.html().toStdString(), HasSubstr("<td align=\"right\">1,2</td><td>kN/m²</td></tr>"));

    type("inputalfa", "2.5");
    choose(window, "Copia i risultati");
    EXPECT_THAT(QApplication::clipboard()->text().toStdString(),
                testing::StartsWith("risultati non aggiornati: premere Calcola\nCarico"));
    choose(window, "Copia lo schizzo");
    EXPECT_FALSE(QApplication::clipboard()->image().isNull());
    EXPECT_THAT(QApplication::clipboard()->mimeData()->data("image/svg+xml").toStdString(),
                HasSubstr("<svg"));

    casipart& special_cases = open_special_cases();
    control<QTabWidget>(special_cases, "cartelle").setCurrentIndex(2);
    control<QPushButton>(special_cases, "Calcola2").click();
    choose(special_cases, "Copia i risultati");
    EXPECT_EQ(QApplication::clipboard()->text(),
              "Forza Fs esercitata dalla neve sull'ostacolo\t1,111\tkN/m\n");
}

TEST_F(MenusTest, ReportIsPrinted) {
    const std::string file = path_text(directory.path() / "stampa.pdf");
    std::string output = file;
    menus().ask_printer = [&](QPrinter& printer) {
        printer.setOutputFileName(output.c_str());
        return true;
    };
    dialogs.expect(Icon::error, std::string(no_calculation_yet));
    choose(window, "Stampa…");
    click("Calcola");
    dialogs.expect(Icon::information, "La relazione illustrata è nel file " + file + ".");
    QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier);
    EXPECT_THAT(read_file(file).value(), HasSubstr("%%EOF"));
    output = path_text(directory.path() / "nowhere" / "stampa.pdf");
    dialogs.expect(Icon::error, "Impossibile stampare nel file " + output + ".");
    choose(window, "Stampa…");
}

TEST_F(MenusTest, AltitudesAreCheckedAndRepairedAfterAQuestionAndARewritingIsNoted) {
    const std::string file = path_text(directory.path() / "altitudini.txt");
    const auto check = [this] { choose(window, "Verifica e ripara altitudini.txt…"); };
    dialogs.expect_question(
        Icon::information,
        "Non c'è ancora il file " + file + ".\rScriverlo dalla tabella del programma, senza i suoi difetti?",
        true);
    dialogs.expect(Icon::information, "Scritto il file " + file + ", senza difetti.");
    check();
    dialogs.expect(Icon::information, "Nessun difetto nel file " + file + ".");
    check();

    std::string table = read_file(file).value();
    table.erase(table.find("Sestriere") + 9, 22);
    directory.put("altitudini.txt", table);
    list("Provinciainput").setCurrentText("Torino");
    EXPECT_THAT(text("altitude_note"), EndsWith("il precedente è conservato come altitudini.bak."));
    EXPECT_TRUE(get("altitude_note").isVisible());
    for (const bool answer : {false, true})
        dialogs.expect_question(
            Icon::warning,
            "Difetti del file " + file +
                ":\r– riga 3530: Vicenza: manca lo spazio tra il nome e l'altitudine\r– riga 8618: "
                "Oristano: manca la riga vuota che chiude la provincia alla fine del "
                "file\r\rRiparare il file? Le altre righe restano come sono; il file attuale è "
                "conservato accanto.",
            answer);
    dialogs.expect(Icon::information, "Scritto il file " + file +
                                          ", senza difetti. Il precedente è conservato come altitudini.bak.");
    check();
    check();
    list("Provinciainput").setCurrentText("Asti");
    EXPECT_FALSE(get("altitude_note").isVisible());
}

TEST_F(MenusTest, LastReportOfEitherWindowIsOpened) {
    const auto report = [this](const char* name) {
        return QUrl::fromLocalFile(QString::fromStdString(directory.name() + "/" + name));
    };
    click("Check1Box");
    dialogs.expect(Icon::none, "Creazione della relazione " + directory.text() + "\\coltre.txt effettuata");
    click("Calcola");
    choose(window, "Apri l'ultima relazione");
    EXPECT_EQ(opened, report("coltre.txt"));

    casipart& special_cases = open_special_cases();
    control<QCheckBox>(special_cases, "Check1Box").setChecked(true);
    dialogs.expect(Icon::none, "Creazione della relazione coltrecasipart.txt effettuata");
    control<QPushButton>(special_cases, "Calcola2").click();
    const std::string path = path_text(directory.path() / "coltrecasipart.txt");
    desktop_has_program = false;
    dialogs.expect(Icon::error,
                   "Impossibile aprire il file " + path + ": il sistema non ha un programma per aprirlo.");
    choose(window, "Apri l'ultima relazione");
    EXPECT_EQ(opened, report("coltrecasipart.txt"));
    std::filesystem::remove(to_path(path));
    dialogs.expect(Icon::error, "La relazione " + path + " non c'è più.");
    choose(window, "Apri l'ultima relazione");
}

TEST_F(MenusTest, ManualOpensAtTheChapterOfTheOpenTab) {
    const std::string place = path_text(directory.path());
    dialogs.expect(Icon::error, "Il manuale non è installato: il file manuale.html non è né in " + place +
                                    " né in " + place + "/../share/doc/coltre.");
    QTest::keyClick(&window, Qt::Key_F1);
    std::ofstream(directory.path() / "manuale.html") << "<html></html>";
    QTest::keyClick(&window, Qt::Key_F1);
    EXPECT_EQ(opened.fileName(), "manuale.html");

    // Each chapter is a heading of the manual.
    const QString manual =
        QString::fromStdString(read_file(COLTRE_MANUAL).value()).toLower().replace(' ', '-');
    EXPECT_TRUE(manual.contains("\n####-" + opened.fragment() + "\n"));
    casipart& special_cases = open_special_cases();
    for (const int page : {0, 1, 2}) {
        control<QTabWidget>(special_cases, "cartelle").setCurrentIndex(page);
        choose(special_cases, "Manuale");
        EXPECT_TRUE(manual.contains("\n####-" + opened.fragment() + "\n")) << opened.fragment().toStdString();
    }
}

TEST_F(MenusTest, AboutNamesVersionBuildAndMakerAndEsciEndsFromEitherWindow) {
    std::ostringstream about;
    about << "Coltre " << version_and_build() << "\r\r" << maker_text() << "\r\r" << program_terms << "\r"
          << notice_text;
    dialogs.expect(Icon::information, about.str());
    choose(window, "Informazioni su Coltre");
    casipart& special_cases = open_special_cases();
    QApplication::setActiveWindow(&special_cases);
    QTest::keyClick(&special_cases, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace coltre
