#include "tests/faults/real_faults.h"
#include "tests/support/sample_document.h"
#include "tests/ui/window_test.h"
#include "ui/report_dialog.h"

namespace coltre {
namespace {

TEST(ReportFaults, AFullOrReadOnlyDiskKeepsTheOldReport) {
    const TemporaryDirectory directory;
    SmallDisk disk{directory.path()};
    if (!disk.mounted()) GTEST_SKIP() << "this machine mounts no disk for tests";
    FakeDialogs dialogs;
    ReportChoices choices;
    const auto expect_refused = [&](ReportChoices::Format format, const std::string& name,
                                    const char* reason) {
        choices.format = format;
        const std::string path = (directory.path() / name).string();
        ReportDialog dialog({[](const TitleBlock&, Layout) { return sample_report(); },
                             [](const Document&) { return std::string(100'000, 'x'); },
                             [&](const TitleBlock&) { return QString::fromStdString(path); }},
                            choices, dialogs);
        dialog.ask_file = [&](auto&&...) { return QString::fromStdString(path); };
        dialogs.expect_question(Icon::warning, "Il file " + path + " esiste già.\rSostituirlo?", true);
        dialogs.expect(Icon::error,
                       "Impossibile salvare la relazione nel file " + path + ": " + reason + ".");
        QTest::mouseClick(&control(dialog, "salva"), Qt::LeftButton);
        EXPECT_EQ(directory.content(name), "old");
    };
    for (const char* name : {"x.pdf", "x.odt", "x.html"})
        directory.put(name, "old");
    disk.leave(8192);  // room for a beginning
    expect_refused(ReportChoices::Format::pdf, "x.pdf", "il disco è pieno");
    expect_refused(ReportChoices::Format::odt, "x.odt", "il disco è pieno");
    expect_refused(ReportChoices::Format::html, "x.html", "il disco è pieno");
    disk.make_read_only();
    expect_refused(ReportChoices::Format::pdf, "x.pdf", "la cartella è in sola lettura");
    EXPECT_EQ(directory.files().size(), 4U) << "no temporary file stays";
}

}  // namespace
}  // namespace coltre
