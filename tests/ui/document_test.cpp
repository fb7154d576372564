#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include "tests/support/sample_document.h"
#include "tests/ui/window_test.h"
#include "ui/document_copy.h"
#include "ui/document_pdf.h"
#include "ui/document_text.h"
#include "ui/steps_window.h"

namespace coltre {
namespace {

/// What another program makes of a file's content; skips the test where that program is not installed.
std::string read_by(const char* program, const QStringList& before, const QByteArray& content,
                    const QStringList& after) {
    const QTemporaryDir directory;
    const QString path = directory.filePath("file");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) return "not written";
    file.close();
    QProcess process;
    process.start(program, before + QStringList(path) + after);
    process.waitForFinished();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput().toStdString();
}

bool installed(const char* program) {
    return !QStandardPaths::findExecutable(program).isEmpty();
}

TEST(DocumentPdf, HoldsTheWholeTextOnNumberedPages) {
    if (!installed("pdftotext")) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
    const QStringList pages =
        QString::fromStdString(read_by("pdftotext", {"-layout"}, to_pdf(sample_report()), {"-"}))
            .split('\f', Qt::SkipEmptyParts);
    ASSERT_GE(pages.size(), 3);
    QString text;
    for (qsizetype i = 0; i < pages.size(); ++i) {
        const QString page = pages[i].simplified();
        EXPECT_TRUE(page.endsWith(QString("31/03/2024 pagina %1 di %2").arg(i + 1).arg(pages.size())));
        text += page + "|";
    }
    for (const char* expected :
         {"Coefficienti di forma", "cT = 1,0000 periodo",
          "µ1(α2) = (60 − α2) · 0,8/30 = (60 − 40) · 0,8/30 = 0,5333 30 < α2 = 40 ≤ 60",
          "1,2318 governa 3 · d2a", "+ 1,2319 = 14,7822 kN/m² 0 ≤ α1", "coltre-calcolo lotto FILE.",
          "Il progettista ....."})
        EXPECT_TRUE(text.contains(expected)) << expected;
    EXPECT_GE(text.count("Elaborato R.07 rev. 3 Prova carico [kN/m²] altitudine"), 1)
        << "the table goes on under its header";
}

TEST(DocumentPdf, SameDocumentSameBytesAndTheDateThatIsGiven) {
    EXPECT_EQ(to_pdf(sample_report()), to_pdf(sample_report()));
    qputenv("SOURCE_DATE_EPOCH", "1700000000");
    const QByteArray dated = to_pdf(sample_report());
    qunsetenv("SOURCE_DATE_EPOCH");
    EXPECT_TRUE(dated.contains("/CreationDate (D:20231114221320Z)"));
}

TEST(DocumentOdt, HoldsTextTablesAndPictures) {
    const Document report = sample_report();
    const QByteArray odt = to_odt(report);
    EXPECT_EQ(odt.mid(38, 39), "application/vnd.oasis.opendocument.text");
    if (!installed("unzip")) GTEST_SKIP() << "unzip is not installed";
    QXmlStreamReader content(QString::fromStdString(read_by("unzip", {"-p"}, odt, {"content.xml"})));
    QStringList pictures;
    QString text;
    std::size_t cells = 0;
    while (!content.atEnd()) {
        content.readNext();
        if (content.isCharacters()) text += content.text();
        if (!content.isStartElement()) continue;
        cells += content.name() == QString("table-cell") ? 1U : 0U;
        if (content.name() == QString("image"))
            pictures += content.attributes().value("http://www.w3.org/1999/xlink", "href").toString();
    }
    EXPECT_FALSE(content.hasError()) << content.errorString().toStdString();
    std::size_t expected = 0;
    for (const Block& block : report.blocks)
        if (const auto* table = std::get_if<Table>(&block))
            expected += table->columns.size() * (table->rows.size() + (table->header.empty() ? 0 : 1));
    EXPECT_EQ(cells, expected);
    EXPECT_TRUE(text.contains("governa 3 · d2a")) << text.toStdString();
    ASSERT_EQ(pictures.size(), 3) << "two diagrams and the sketch";
    const std::string picture = read_by("unzip", {"-p"}, odt, {pictures[2]});
    EXPECT_EQ(QImage::fromData(QByteArray::fromStdString(picture)).size(), QSize(1339, 596))
        << "200 dpi, as wide as the text";
}

TEST(DocumentCopy, GivesSpreadsheetsOneNumberACell) {
    const CopiedTable table = copied_table(sample_steps());
    const QStringList rows = table.text.split('\n');
    for (const char* row :
         {"1  Carico neve al suolo",
          "q0\t1,39 · (1 + (as/728)²) = 1,39 · (1 + (239/728)²)\t1,5398\tkN/m²\tas = 239 > 200; ramo "
          "crescente della Zona I Alpina; D.M. 16 gennaio 1996",
          "µ1(α1)\t\t0,8000\t\t0 ≤ α1 = 20 ≤ 30; ramo costante; Circ. 4 luglio 1996"})
        EXPECT_TRUE(rows.contains(row)) << row;
    EXPECT_TRUE(table.html.contains("<tr><td><i>c</i><sub>T</sub></td><td></td><td><b>1,0000</b></td>"));
    EXPECT_TRUE(table.html.contains("<i>a</i><sub>s</sub> = 239 &gt; 200"));
}

TEST(DocumentCopy, TakesAStepThatStoppedAndATable) {
    Document document;
    document.blocks.emplace_back(step_line({"k", "3 / d", "3 / 0", std::nullopt, Fault::division_by_zero, "",
                                            "", "", quantities::coefficient, ""}));
    document.blocks.emplace_back(Table{
        {ColumnAlign::left, ColumnAlign::right}, {plain("a"), plain("b")}, {{plain("1"), plain("x\ty")}}});
    EXPECT_EQ(copied_table(document).text.toStdString(),
              "k\t3/d = 3/0\t\t\tnon si può calcolare: divisione per zero\n"
              "a\tb\n1\tx y\n");
}

class StepsWindowTest : public testing::Test {
  protected:
    StepsWindowTest() {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }
    [[nodiscard]] QString shown() { return control<QTextBrowser>(window, "passaggi").toPlainText(); }
    void resize(int width) {
        window.resize(width, 500);
        QCoreApplication::processEvents();  // the text follows
    }

    StepsWindow window;
};

TEST_F(StepsWindowTest, FollowsEachCalculation) {
    EXPECT_EQ(shown(), "Nessun calcolo eseguito: premere Calcola.");
    EXPECT_FALSE(window.isModal());
    EXPECT_FALSE(control(window, "copia_testo").isEnabled()) << "there is nothing to copy";

    window.show_document(sample_steps());
    EXPECT_TRUE(shown().contains("\nq0 = 1,39 · (1 + (as/728)²) = 1,39 · (1 + (239/728)²) = 1,5398 kN/m²"));
    auto& bar = *control<QTextBrowser>(window, "passaggi").verticalScrollBar();
    bar.setValue(bar.maximum() / 2);
    const int height = bar.value();
    window.show_document(sample_steps());
    EXPECT_EQ(bar.value(), height) << "the reader keeps the place";

    Document other;
    other.blocks.emplace_back(Paragraph{plain("Calcolo interrotto")});
    window.show_document(other);
    EXPECT_EQ(shown(), "Calcolo interrotto");
    QTest::mouseClick(&control(window, "copia_tabella"), Qt::LeftButton);
    EXPECT_TRUE(QApplication::clipboard()->mimeData()->html().contains("Calcolo interrotto</td>"));
}

// A narrow window has no room for remarks beside their formulas, and nothing is lost at its edge.
TEST_F(StepsWindowTest, RemarksGoBelowWhereTheWindowIsNarrow) {
    window.show_document(sample_steps());
    resize(window.minimumSizeHint().width());
    EXPECT_TRUE(shown().contains("\n0 ≤ α1 = 20 ≤ 30"));
    EXPECT_LE(control<QTextBrowser>(window, "passaggi").horizontalScrollBar()->maximum(), 1)
        << "but rounding";
    resize(1000);
    EXPECT_TRUE(shown().contains("\t0 ≤ α1 = 20 ≤ 30"));
    EXPECT_FALSE(control(window, "figura").isVisible());
    resize(1200);
    EXPECT_TRUE(control(window, "figura").isVisible()) << "the figure stands beside its steps";
    EXPECT_FALSE(shown().contains(QChar::ObjectReplacementCharacter));
    const auto& page = control<QTextBrowser>(window, "figura");
    const QVariant picture = page.document()->resource(QTextDocument::ImageResource, QUrl("figura-1.png"));
    EXPECT_GT(picture.value<QImage>().width(), page.viewport()->width() * 9 / 10);
}

TEST_F(StepsWindowTest, IsReadableOnDark) {
    resize(1000);
    window.show_document(sample_steps());
    QPalette dark(QColor(40, 40, 40));
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    window.setPalette(dark);
    const QTextDocument& text = *control<QTextBrowser>(window, "passaggi").document();
    const QTextCursor governs = text.find("governa");
    EXPECT_GT(governs.charFormat().foreground().color().lightness(), 150);
    const QVariant picture = text.resource(QTextDocument::ImageResource, QUrl("figura-1.png"));
    EXPECT_EQ(picture.value<QImage>().pixelColor(2, 2), QColor(Qt::black));
}

TEST_F(StepsWindowTest, IsReachedByKeys) {
    window.show_document(sample_steps());
    QTest::keyClick(&window, Qt::Key_T, Qt::AltModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), copied_text(sample_steps()));
    auto& text = control<QTextBrowser>(window, "passaggi");
    text.setFocus();
    QTest::keyClick(&text, Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget(), &control(window, "copia_testo"));
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace coltre
