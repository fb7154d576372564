// How long the windows take to answer: a click on Calcola with its report, a key in a field whose sketch
// follows, a new picture of a sketch. On the offscreen platform.

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <functional>

#include "bench/action_time.h"
#include "bench/figure.h"
#include "tests/support/temporary_directory.h"
#include "ui/Form1.h"
#include "ui/place_finder.h"
#include "ui/sketch_widget.h"

namespace {

using namespace coltre;

constexpr double at_most_ms = 5;

/// A user who closes every message box at once.
class QuickUser : public UserDialogs {
  public:
    void show(const Message& /*message*/) override {}
    bool ask(const Message& /*question*/) override { return true; }
    void end() override {}
};

void measure(const char* what, const std::function<void()>& act) {
    print({what, "ms", slowest_time_of(act), std::nullopt, at_most_ms});
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "*.warning=false");  // what this platform cannot do
    QApplication application(argc, argv);
    const TemporaryDirectory directory;
    Program program;
    QuickUser user;
    Form1 window(program, user);
    if (!window.load("", directory.text())) return 2;
    window.resize(1280, 760);
    window.show();
    window.findChild<QCheckBox*>("Check1Box")->setChecked(true);
    window.findChild<QLineEdit*>("asinput")->setText("239");
    auto* const tabs = window.findChild<QTabWidget*>("SSTab1");
    auto* const calculate = window.findChild<QPushButton*>("Calcola");
    auto* const slope = window.findChild<QLineEdit*>("inputalfa1");
    auto* const sketch = window.findChild<SketchWidget*>("sketch_2");
    tabs->setCurrentIndex(1);
    QApplication::processEvents();

    measure("click on Calcola with report, slowest", [&] { calculate->click(); });
    int i = 0;
    measure("key in a field, slowest",
            [&] { QTest::keyClick(slope, ++i % 2 == 0 ? Qt::Key_5 : Qt::Key_Backspace); });
    measure("sketch drawn anew, slowest", [&] {
        slope->setText(++i % 2 == 0 ? "20" : "25");
        sketch->repaint();
    });
    measure("sketch shown again, slowest", [&] { sketch->repaint(); });

    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    auto* const finder = window.findChild<PlaceFinder*>();
    auto* const name = finder->findChild<QLineEdit*>("cerca");
    auto* const hits = finder->findChild<QTableView*>("comuni");
    // "s" is in most of the 8102 names, without it all of them are shown.
    measure("key in Trova comune, slowest", [&] {
        QTest::keyClick(name, ++i % 2 == 0 ? Qt::Key_S : Qt::Key_Backspace);
        hits->viewport()->repaint();
    });
    return 0;
}
