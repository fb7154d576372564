#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>
#include <stdexcept>
#include <string>

#include "tests/support/temporary_directory.h"
#include "tests/ui/fake_dialogs.h"
#include "ui/Form1.h"

namespace coltre {

/// A control of a window by its name; a name that is not there fails the test.
template <typename Control = QWidget>
Control& control(QWidget& window, const char* name) {
    auto* found = window.findChild<Control*>(name);
    if (!found) throw std::runtime_error(std::string("no control ") + name);
    return *found;
}

/// The first open window of that class, or null.
template <typename Window>
Window* open_window() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* window = qobject_cast<Window*>(widget); window && window->isVisible()) return window;
    return nullptr;
}

/// The main window on the screen, stand-alone in a directory of its own.
class MainWindowTest : public testing::Test {
  protected:
    MainWindowTest() : window(program, dialogs, dialogs) {}

    void SetUp() override { start(""); }

    void start(const std::string& command_line) {
        ASSERT_TRUE(window.load(command_line, directory.text()));
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    template <typename Control = QWidget>
    Control& get(const char* name) {
        return control<Control>(window, name);
    }
    QComboBox& list(const char* name) { return get<QComboBox>(name); }
    std::string text(const char* label) { return get<QLabel>(label).text().toStdString(); }
    std::string field(const char* name) { return get<QLineEdit>(name).text().toStdString(); }

    /// Types over what the field holds.
    void type(const char* name, const QString& typed) {
        auto& edit = get<QLineEdit>(name);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClick(&edit, Qt::Key_Delete);
        QTest::keyClicks(&edit, typed);
    }
    void click(const char* button) { QTest::mouseClick(&get(button), Qt::LeftButton); }
    void choose_tab(int index) { get<QTabWidget>("SSTab1").setCurrentIndex(index); }

    TemporaryDirectory directory;
    Program program;
    FakeDialogs dialogs;
    Form1 window;
};

}  // namespace coltre
