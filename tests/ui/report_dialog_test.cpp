#include "ui/report_dialog.h"

#include "tests/ui/window_test.h"

namespace coltre {
namespace {

/// The dialog over a source that makes a short document of what it is asked for.
class ReportDialogTest : public WindowTest {
  protected:
    ReportDialogTest() {
        choices.title_block.date = "01/03/2024";
        open();
    }

    void open() {
        dialog = std::make_unique<ReportDialog>(source(), choices, dialogs);
        tested = dialog.get();
        dialog->ask_file = [this](const QString&, const QString& suggested, const QString& shown_filter) {
            suggestion = suggested.toStdString();
            filter = shown_filter.toStdString();
            return answer;
        };
        dialog->open_file = [this](const QString& path) {
            opened = path.toStdString();
            return has_viewer;
        };
        dialog->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
    }

    ReportSource source() {
        return {[this](const TitleBlock& block, Layout layout) {
                    made_layout = layout;
                    Document document;
                    document.blocks.emplace_back(Paragraph{plain(block.work + ", " + block.date)});
                    return document;
                },
                [](const Document& document) {
                    return "<p>" + plain_text(std::get<Paragraph>(document.blocks[0]).pieces) + "</p>";
                },
                [this](const TitleBlock& block) {
                    return QString::fromStdString(directory.name() + "/relazione-" + block.work);
                }};
    }

    /// The path in the test's directory, as the file dialog returns it.
    [[nodiscard]] QString path(const char* name) const {
        return QString::fromStdString(directory.name() + "/" + name);
    }
    /// The same as messages show it.
    [[nodiscard]] std::string shown(const char* name) const {
        return QDir::toNativeSeparators(path(name)).toStdString();
    }
    void choose_file(const char* name) { answer = *name == '\0' ? QString() : path(name); }
    void expect_offer(const char* name, bool accepted) {
        dialogs.expect_question(Icon::information,
                                "Relazione salvata nel file " + shown(name) + ".\rAprirla?", accepted);
    }
    [[nodiscard]] std::string file(const char* name) const {
        return directory.content(name).value_or("no file");
    }

    ReportChoices choices;
    QString answer;
    std::string suggestion, filter, opened;
    bool has_viewer = true;
    Layout made_layout{};
    std::unique_ptr<ReportDialog> dialog;
};

TEST_F(ReportDialogTest, SavesWhatIsTypedAndKeepsItForTheRun) {
    EXPECT_EQ(field("data"), "01/03/2024");
    type({{"lavoro", " Scuola "}, {"committente", "Comune"}});
    list("contenuto").setCurrentText("Sintetica");
    QTest::keyClick(&list("formato"), Qt::Key_End);  // HTML
    answer = path("mia relazione.2");
    expect_offer("mia relazione.2.html", true);
    click("salva");
    EXPECT_EQ(suggestion, path("relazione-Scuola.html").toStdString());
    EXPECT_EQ(filter, "Documenti HTML (*.html)");
    EXPECT_EQ(file("mia relazione.2.html"), "<p>Scuola, 01/03/2024</p>");
    EXPECT_EQ(made_layout, Layout::brief);
    EXPECT_EQ(opened, path("mia relazione.2.html").toStdString());
    EXPECT_FALSE(dialog->isVisible());

    open();
    EXPECT_EQ(field("lavoro") + "|" + list("contenuto").currentText().toStdString(), "Scuola|Sintetica");
    EXPECT_TRUE(list("formato").currentText().startsWith("HTML"));
    type("data", "31/03/2024");
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    open();
    EXPECT_EQ(field("data"), "31/03/2024") << "kept although nothing was saved";
}

TEST_F(ReportDialogTest, TheFormatGivesTheSuffixAndTheContent) {
    const struct {
        ReportChoices::Format format;
        const char *chosen, *written, *begin;
    } cases[] = {{ReportChoices::Format::pdf, "a.PDF", "a.PDF", "%PDF-"},
                 {ReportChoices::Format::pdf, "b.odt", "b.pdf", "%PDF-"},
                 {ReportChoices::Format::odt, "c.html", "c.odt", "PK"},
                 {ReportChoices::Format::html, "d", "d.html", "<p>"}};
    for (const auto& it : cases) {
        choices.format = it.format;
        open();
        choose_file(it.chosen);
        expect_offer(it.written, false);
        QTest::keyClick(&get("lavoro"), Qt::Key_Return);
        EXPECT_TRUE(file(it.written).starts_with(it.begin)) << it.written;
    }
    EXPECT_EQ(opened, "") << "the user would rather not";
    EXPECT_EQ(directory.files().size(), std::size(cases));
}

TEST_F(ReportDialogTest, AnExistingFileIsReplacedOnlyIfTheUserSaysSo) {
    directory.put("x.pdf", "old");
    choose_file("");  // the file dialog was left
    click("salva");
    choose_file("x");
    const std::string question = "Il file " + shown("x.pdf") + " esiste già.\rSostituirlo?";
    dialogs.expect_question(Icon::warning, question, false);
    click("salva");
    EXPECT_EQ(file("x.pdf"), "old");
    EXPECT_TRUE(dialog->isVisible()) << "another name may be chosen";

    dialogs.expect_question(Icon::warning, question, true);
    expect_offer("x.pdf", true);
    has_viewer = false;
    dialogs.expect(Icon::error, "Nessun programma per aprire il file " + shown("x.pdf") + ".");
    click("salva");
    EXPECT_TRUE(file("x.pdf").starts_with("%PDF-"));
}

TEST_F(ReportDialogTest, AFileThatCannotBeWrittenIsToldAndNothingIsLost) {
    type("lavoro", "Scuola");
    answer = path("nowhere/x.pdf");
    dialogs.expect(Icon::error, "Impossibile salvare la relazione nel file " + shown("nowhere/x.pdf") +
                                    ": la cartella non esiste.");
    click("salva");
    EXPECT_EQ(field("lavoro"), "Scuola");
    EXPECT_TRUE(dialog->isVisible());
    answer.clear();  // the file dialog was left
    click("salva");
    EXPECT_TRUE(directory.files().empty());
}

TEST_F(ReportDialogTest, WithoutACalculationThereIsNoReport) {
    dialogs.expect(Icon::information, "Nessun calcolo eseguito: premere Calcola.");
    ask_for_report({}, choices, dialogs, nullptr);
}

}  // namespace
}  // namespace coltre
