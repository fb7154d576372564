#include "platform/files.h"
#include "tests/ui/window_test.h"
#include "ui/casipart.h"

namespace coltre {
namespace {

class JobTest : public MainWindowTest {
  protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        auto& job = *window.findChild<JobFile*>();
        job.ask_file_to_open =
            job.ask_file_to_save = [this](auto...) { return QString::fromStdString(path); };
    }
    void open() { QTest::keyClick(&window, Qt::Key_O, Qt::ControlModifier); }
    void open(const std::string& content) {
        directory.put("x.coltre", content);
        open();
    }
    /// What saving from a window writes.
    std::string saved(QWidget& from) {
        std::filesystem::remove(to_path(path));
        for (QAction* action : from.findChildren<QAction*>())
            if (action->text() == "Salva lavoro…") return action->trigger(), read_file(path).value_or("");
        return "no entry";
    }

    std::string path = path_text(directory.path() / "x.coltre");
};

TEST_F(JobTest, OpeningAJobFillsTheWindowsSoThatSavingWritesItAgain) {
    const std::string roof =
        R"({"calcolo": "due-falde", "provincia": "Cuneo", "comune": "Alba", "altitudine": "600", )"
        R"("periodo-ritorno": "100", "ce": "1.1", "ct": "1.2", "unita": "Kgf , m", "alfa1": "20", "alfa2": "4x"})"
        "\n";
    const std::string without_site =
        R"({"calcolo": "cilindrica", "zona": 2, "altitudine": "60", "ce": "1.0", "ct": "1.0", )"
        "\"unita\": \"kN , m\", \"larghezza\": \"12\", \"altezza\": \"3\"}\n";
    const std::string other_zone =
        R"({"calcolo": "discontinuita", "provincia": "Asti", "comune": "Asti", "zona": 3, "altitudine": "123", )"
        R"("ce": "0.9", "ct": "1.0", "unita": "kgf , cm", "b1": "3.5", "b2": "5", "h": "2", "alfa": "10"})"
        "\n";
    for (const std::string& job : {roof, without_site, roof, other_zone}) {
        open(job);
        QWidget* const special_cases = open_window<casipart>();
        EXPECT_EQ(saved(special_cases ? *special_cases : window), job);
        EXPECT_EQ(text("factor_in_force"),
                  job == roof ? "coefficiente 0.9009" : "coefficiente 1, non confermato");
    }
    EXPECT_EQ(text("Zonalabel"), "(Zona III)");
}

TEST_F(JobTest, AFileThatIsNoJobChangesNothing) {
    const std::string before = saved(window);
    const std::string other = "il file è di un altro programma, non è un lavoro di Coltre";
    const std::string later = "il lavoro è forse di una versione più recente: ";
    const std::pair<std::string, std::string> files[] = {
        {"", "il file è vuoto"},
        {R"({"calcolo":"parete","zona":2,"alt)", "il file è incompleto: JSON illeggibile al carattere 34"},
        {"\xEF\xBB\xBF{\"calcolo\":=}", "il file è danneggiato: JSON illeggibile al carattere 12"},
        {"\xEF\xBB\xBF", "il file è vuoto"},
        {"%PDF-1.4", other},
        {R"({"name":"app","version":2})", other},
        {R"({"calcolo":"cupola"})", later + "calcolo sconosciuto: «cupola»"},
        {R"({"calcolo":"una-falda","zona":2,"altitudine":5,"pendenza":1})", later + "manca «alfa»"},
        {R"({"calcolo":"una-falda","zona":2,"altitudine":5})", "il lavoro è errato: manca «alfa»"},
        {"{\"calcolo\":\"parete\",\"zona\":2,\"altitudine\":5,\"h\":2}\n{}\n",
         "il file contiene più richieste, è un lotto del comando"},
        {std::string(longest_job + 1, ' '), "il file è più lungo di 30000 byte"},
    };
    for (const auto& [content, reason] : files) {
        dialogs.expect(Icon::error, "Impossibile aprire il lavoro " + path + ": " + reason + ".");
        open(content);
    }
    EXPECT_EQ(saved(window), before);
}

TEST_F(JobTest, WhatCannotBeTakenIsAskedAboutBeforeAnythingChanges) {
    const std::string before = saved(window);
    const std::string content =
        R"({"calcolo":"una-falda","provincia":"Roma","comune":"Romaa","altitudine":600,"ce":1.05,)"
        R"("periodo-ritorno":1,"ombra":{},"relazione":".","id":3,"alfa":30})";
    const std::string question = "Del lavoro " + path +
                                 " non si può riprendere:"
                                 "\r– sito «Romaa», «Roma»: comune sconosciuto: «Romaa»; forse Roma"
                                 "\r– «ce» «1.05»: l'elenco ha 0.9, 1.0 e 1.1; vale 1.0"
                                 "\r– «periodo-ritorno» «1»: il periodo non è valido; vale il coefficiente 1"
                                 "\r– chiave sconosciuta «ombra», forse di una versione più recente"
                                 "\r– chiave «relazione», che serve soltanto al comando"
                                 "\r– chiave «id», che serve soltanto al lotto\r\rAprire il resto?";
    dialogs.expect_question(Icon::warning, question, false);
    open(content);
    EXPECT_EQ(saved(window), before);
    dialogs.expect_question(Icon::warning, question, true);
    open(content);
    EXPECT_EQ(saved(window),
              R"({"calcolo": "una-falda", "zona": 3, "altitudine": "600", "ce": "1.0", "ct": "1.0", )"
              R"("unita": "kN , m", "alfa": "30"})"
              "\n");
}

TEST_F(JobTest, CalculatedEntriesAreNotLostWithoutAQuestion) {
    click("Calcola");
    const std::string another =
        "I dati dell'ultimo calcolo non sono salvati in un lavoro.\rAprire un altro lavoro?";
    dialogs.expect_question(Icon::warning, another, false);
    open();
    saved(window);
    open();  // nothing to be lost
    type("inputalfa", "33");
    click("Calcola");
    const std::string end =
        "I dati dell'ultimo calcolo non sono salvati nel lavoro " + path + ".\rChiudere il programma?";
    dialogs.expect_question(Icon::warning, end, false);
    click("Chiudi");
    EXPECT_TRUE(window.isVisible());

    path = path_text(directory.path() / "nowhere" / "x.coltre");
    dialogs.expect(Icon::error,
                   "Impossibile salvare il lavoro nel file " + path + ": la cartella non esiste.");
    saved(window);
    dialogs.expect_question(Icon::warning, end, true);
    click("Chiudi");
    EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace coltre
