#pragma once

#include <gtest/gtest.h>

#include <QLabel>
#include <QPointer>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>
#include <deque>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "ui/casipart.h"

namespace coltre {

using Texts = std::map<std::string, std::string>;

/// A user who expects certain message boxes in turn; any other fails the test.
class FakeDialogs : public UserDialogs {
  public:
    ~FakeDialogs() override { EXPECT_TRUE(expected.empty()) << "not shown: " << expected.front().text; }

    void show(const Message& message) override {
        if (while_shown) while_shown();
        if (expected.empty()) {
            ADD_FAILURE() << "unexpected box: " << message.text;
            return;
        }
        EXPECT_EQ(message.text, expected.front().text);
        EXPECT_EQ(message.title, expected.front().title);
        EXPECT_EQ(message.icon, expected.front().icon);
        expected.pop_front();
    }
    bool ask(const Message& question) override {
        ADD_FAILURE() << "unexpected question: " << question.text;
        return false;
    }
    void expect_stop(const std::string& text) {
        expected.push_back({Icon::error, "Coltre", "Calcolo interrotto: " + text});
    }

    std::deque<Message> expected;
    std::function<void()> while_shown;
};

/// The window as a user meets it. Zone II at 200 m: G = 1 kN/m2 unless a test changes the site.
class CasipartTest : public testing::Test {
  protected:
    void SetUp() override {
        program.cells.zone = 2;
        open();
    }
    void TearDown() override {
        if (window) click("Chiudi2");
        wait_until_closed();
    }

    void open() {
        window = new casipart(
            program, dialogs, [this] { return site; },
            [this] { shown_ground_loads.push_back(program.cells.qsk); });
        window->show();
        window->activateWindow();  // without a window manager nobody else does
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    }
    void wait_until_closed() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return window.isNull(); })) << "the window is still there";
    }

    template <typename Widget = QWidget>
    Widget& find(const char* name) {
        auto* widget = window->findChild<Widget*>(name);
        if (widget == nullptr) throw std::runtime_error(std::string("no widget ") + name);
        return *widget;
    }
    void click(const char* name) {
        QWidget& widget = find(name);
        // A check box answers on its mark and its text alone, not on the whole of its rectangle.
        QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(10, widget.height() / 2));
    }
    void select_page(int page) {
        QTabBar* tabs = find<QTabWidget>("cartelle").tabBar();
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(page).center());
    }
    void type(const char* field, const char* text) {
        QWidget& widget = find(field);
        QTest::mouseClick(&widget, Qt::LeftButton);
        QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&widget, Qt::Key_Delete);
        QTest::keyClicks(&widget, text);
    }
    void type_level_change(const char* h, const char* b1, const char* b2, const char* alfa) {
        type("h2input", h);
        type("b1input", b1);
        type("b2input", b2);
        type("deltainput", alfa);
    }

    /// The texts of all result labels that show a result.
    Texts results() {
        Texts texts;
        for (const char* name : {"carico_14", "carico_15", "lsoutput", "carico_16", "carico_17", "ls2outputA",
                                 "ls2outputB", "Fsoutput"}) {
            const QString text = find<QLabel>(name).text();
            if (text != "–") texts[name] = text.toStdString();
        }
        return texts;
    }
    std::string text_of(const char* label) { return find<QLabel>(label).text().toStdString(); }

    Program program;
    FakeDialogs dialogs;
    SiteFields site{.asinput = "200", .ComboEsp = "1.0", .TextCTermico = "1.0"};
    std::vector<double> shown_ground_loads;
    QPointer<casipart> window;
};

}  // namespace coltre
