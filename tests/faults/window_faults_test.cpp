#include <sys/stat.h>

#include "site/built_in_altitudes.h"
#include "tests/faults/real_faults.h"
#include "tests/support/suite_tree.h"
#include "tests/ui/window_test.h"
#include "text/characters.h"

namespace coltre {
namespace {

namespace fs = std::filesystem;

class WindowFaults : public MainWindowTest {
  protected:
    void expect_refused_report(const std::string& work_directory, const std::string& reason) {
        dialogs.expect(Icon::error,
                       "Impossibile scrivere il file " + work_directory + "\\coltre.txt: " + reason + ".");
    }
    void choose(const char* site_list, const char* name) { list(site_list).setCurrentText(name); }

    SmallDisk disk{directory.path()};
};

TEST_F(WindowFaults, WhatVanishesBetweenTwoClicksIsWrittenAnewOrTold) {
    const fs::path job = directory.path() / "job001";
    fs::create_directory(job);
    program.directories.WorkDirectory = suite_notation(job);
    choose("Provinciainput", "Torino");
    EXPECT_TRUE(fs::remove(directory.path() / "altitudini.txt"));
    choose("comuneinput", "Aglie'");
    EXPECT_EQ(field("asinput"), "315");
    EXPECT_EQ(directory.content("altitudini.txt"), built_in_altitude_file());

    click("Check1Box");
    dialogs.expect(Icon::none,
                   "Creazione della relazione " + suite_notation(job) + "\\coltre.txt effettuata");
    click("Calcola");
    fs::remove_all(job);
    expect_refused_report(suite_notation(job), "la cartella non esiste");
    click("Calcola");
    click("Check1Box");
    get<QLabel>("carico_1").setText("");
    click("Calcola");
    EXPECT_EQ(text("carico_1"), " 1.3202") << "the window stays usable";

    program.directories.ProgramDirectory = suite_notation(job);
    dialogs.expect(Icon::error, "Errore di scrittura del file altitudini.txt .");
    choose("comuneinput", "Torino");
    EXPECT_EQ(dialogs.ended, 1);
    EXPECT_FALSE(fs::exists(job));
}

TEST_F(WindowFaults, FullDiskKeepsTheOldReportAndTheOldPicture) {
    if (!disk.mounted()) GTEST_SKIP() << "this machine mounts no disk for tests";
    for (const char* name : {"coltre.txt", "x.svg", "x.png", "x.pdf"})
        directory.put(name, "old");
    make_full_device(directory.path() / "full.svg");
    disk.leave(0);
    click("Check1Box");
    expect_refused_report(directory.text(), "il disco è pieno");
    click("Calcola");
    EXPECT_EQ(text("carico_1"), " 1.2") << "the results are there all the same";

    auto& sketch = get<SketchWidget>("sketch_1");
    const auto expect_refused = [&](const std::string& name, PictureFormat format, const char* reason) {
        dialogs.expect(Icon::error, "Impossibile salvare il file " + name + ": " + reason);
        EXPECT_FALSE(sketch.save(QString::fromStdString((directory.path() / name).string()), format));
    };
    expect_refused("x.svg", PictureFormat::svg, "il disco è pieno");
    expect_refused("x.png", PictureFormat::png, "il disco è pieno");
    expect_refused("x.pdf", PictureFormat::pdf, "il disco è pieno");
    expect_refused("X.svg", PictureFormat::svg, "il disco è pieno");  // another file than x.svg
    expect_refused("full.svg", PictureFormat::svg,
                   "con questo nome esiste già una cartella o altro che non è un file");
    dialogs.expect(Icon::error, "Errore di scrittura del file altitudini.txt .");
    choose("Provinciainput", "Torino");
    EXPECT_EQ(dialogs.ended, 1);
    for (const char* name : {"coltre.txt", "x.svg", "x.png", "x.pdf"})
        EXPECT_EQ(directory.content(name), "old") << name;
    EXPECT_EQ(directory.files().size(), 6U) << "no temporary file stays";
}

TEST_F(WindowFaults, SettingThatIsNoFileEndsTheProgram) {
    struct : FakeDialogs {
        void show(const Message& message) override { text += message.title + ": " + message.text; }
        std::string text;
    } boxes;
    for (const char* name : {"DirLav", "LAVORO"})
        for (const int what : {0, 1, 2, 3}) {
            const SuiteTree suite;
            const fs::path setting = suite.disk_root() / "IMPOSTAZIONI" / name;
            fs::remove(setting);
            if (what == 0) fs::create_directory(setting);
            if (what == 1) ::mkfifo(setting.c_str(), 0600);  // nobody writes into it
            if (what == 2) fs::create_symlink(name, setting);
            Form1 other(program, boxes);
            EXPECT_FALSE(other.load(suite.command_line(), ""));
            const std::string file = lower_case(suite.root()) + "\\impostazioni\\" + lower_case(name);
            EXPECT_EQ(std::exchange(boxes.text, ""), "ERRORE: " + file + " errato o mancante.");
            EXPECT_EQ(std::exchange(boxes.ended, 0), 1);
            EXPECT_EQ(control<QComboBox>(other, "regione").count(), 0) << "nothing more is done";
        }
}

}  // namespace
}  // namespace coltre
