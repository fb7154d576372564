#pragma once

#include <gtest/gtest.h>

#include <QLabel>
#include <QPointer>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/ui/fake_dialogs.h"
#include "ui/casipart.h"

namespace coltre {

using Texts = std::map<std::string, std::string>;

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
