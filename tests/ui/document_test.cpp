#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "tests/support/sample_document.h"
#include "ui/document_pdf.h"

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
         {"Coefficienti di forma", "cT = 1 periodo",
          "µ1(α2) = 0,8 · (60 − α2)/30 = 0,8 · (60 − 40)/30 = 0,5333 30 < α2 ≤ 60", "1,2319 governa 3 · d2a",
          "+ 1,2319 = 14,7822 kN/m² 0 ≤ α1", "coltre-calcolo lotto FILE.", "Il progettista ....."})
        EXPECT_TRUE(text.contains(expected)) << expected;
    EXPECT_EQ(text.count("Elaborato R.07 rev. 3 Se cambia carico massimo [kN/m²] variazione altitudine"), 1)
        << "the table goes on under its header";
}

TEST(DocumentPdf, SameDocumentSameBytesAndTheDateThatIsGiven) {
    const QByteArray pdf = to_pdf(sample_report());
    EXPECT_EQ(pdf, to_pdf(sample_report()));
    EXPECT_FALSE(pdf.contains("CreationDate")) << "without a given date there is none";
    qputenv("SOURCE_DATE_EPOCH", "1700000000");
    const QByteArray dated = to_pdf(sample_report());
    qunsetenv("SOURCE_DATE_EPOCH");
    EXPECT_TRUE(dated.contains("/CreationDate (D:20231114221320Z)"));
    EXPECT_EQ(dated.size(), pdf.size());
}

TEST(DocumentPdf, OfNothingIsAnEmptyPage) {
    EXPECT_TRUE(to_pdf({}).startsWith("%PDF-"));
}

}  // namespace
}  // namespace coltre
