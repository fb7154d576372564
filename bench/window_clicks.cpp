// How long the windows take to answer: a click on Calcola with its report, a key in a field whose sketch
// follows, a new picture of a sketch. Run by bench/window_speed, on the offscreen platform.

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

#include "tests/support/temporary_directory.h"
#include "ui/Form1.h"
#include "ui/sketches/sketch_widget.h"

namespace {

using namespace coltre;

constexpr double at_most_ms = 5;
constexpr int runs = 101;

/// A user who closes every message box at once.
class QuickUser : public UserDialogs, public ProgramEnd {
  public:
    void show(const Message& /*message*/) override {}
    bool ask(const Message& /*question*/) override { return true; }
    void end() override {}
};

/// Prints the median and the worst of the runs.
/// @return false if the median is over the limit
bool measure(const char* what, const std::function<void()>& act) {
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        const auto begin = std::chrono::steady_clock::now();
        act();
        times.push_back(
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count());
        QApplication::processEvents();
    }
    std::ranges::sort(times);
    const double median = times[runs / 2];
    std::printf("%-44s median %6.2f ms, worst %6.2f ms, at most %.0f ms%s\n", what, median, times.back(),
                at_most_ms, median <= at_most_ms ? "" : "  MISSED");
    return median <= at_most_ms;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const TemporaryDirectory directory;
    Program program;
    QuickUser user;
    Form1 window(program, user, user);
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

    bool all_met = measure("click on Calcola, report and labels", [&] { calculate->click(); });
    int i = 0;
    all_met = measure("key in a field",
                      [&] { QTest::keyClick(slope, ++i % 2 == 0 ? Qt::Key_5 : Qt::Key_Backspace); }) &&
              all_met;
    all_met = measure("sketch drawn anew",
                      [&] {
                          slope->setText(++i % 2 == 0 ? "20" : "25");
                          sketch->repaint();
                      }) &&
              all_met;
    all_met = measure("sketch shown again", [&] { sketch->repaint(); }) && all_met;
    return all_met ? 0 : 1;
}
