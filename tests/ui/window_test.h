#pragma once

#include <gmock/gmock.h>

#include <QtTest>
#include <QtWidgets>
#include <stdexcept>

#include "tests/support/temporary_directory.h"
#include "tests/ui/fake_dialogs.h"
#include "ui/Form1.h"

namespace coltre {

/// A control of a window by its name; a name that is not there fails the test.
template <typename Control = QWidget>
Control& control(QWidget& window, const std::string& name) {
    auto* found = window.findChild<Control*>(name.c_str());
    if (!found) throw std::runtime_error("no control " + name);
    return *found;
}

/// The first open window of that class, or null.
template <typename Window>
Window* open_window() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* window = qobject_cast<Window*>(widget); window && window->isVisible()) return window;
    return nullptr;
}

/// A window as a user meets it, in a directory of its own.
class WindowTest : public testing::Test {
  protected:
    template <typename Control = QWidget>
    Control& get(const std::string& name) {
        return control<Control>(*tested, name);
    }
    QComboBox& list(const char* name) { return get<QComboBox>(name); }
    std::string text(const std::string& label) { return get<QLabel>(label).text().toStdString(); }
    std::string field(const char* name) { return get<QLineEdit>(name).text().toStdString(); }
    /// The texts of the labels with these numbers.
    std::vector<std::string> texts(const char* array, const std::vector<int>& numbers) {
        std::vector<std::string> found;
        for (const int i : numbers)
            found.push_back(text(array + std::to_string(i)));
        return found;
    }

    /// Types over what the field holds.
    void type(const char* name, const QString& typed) {
        auto& edit = get<QLineEdit>(name);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClick(&edit, Qt::Key_Delete);
        QTest::keyClicks(&edit, typed);
    }
    void type(const std::vector<std::pair<const char*, const char*>>& entries) {
        for (const auto& [name, typed] : entries)
            type(name, typed);
    }
    /// A check box answers on its mark and its text alone, not on the whole of its rectangle.
    void click(const char* button) {
        QTest::mouseClick(&get(button), Qt::LeftButton, {}, QPoint(10, get(button).height() / 2));
    }

    TemporaryDirectory directory;
    Program program;
    FakeDialogs dialogs;
    QPointer<QWidget> tested;
};

/// The main window on the screen, stand-alone.
class MainWindowTest : public WindowTest {
  protected:
    void SetUp() override { start(""); }
    void start(const std::string& command_line) {
        tested = &window;
        ASSERT_TRUE(window.load(command_line, directory.text()));
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }
    void choose_tab(int index) { get<QTabWidget>("SSTab1").setCurrentIndex(index); }

    Form1 window{program, dialogs};
};

}  // namespace coltre
