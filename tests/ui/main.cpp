#include <gtest/gtest.h>

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QOperatingSystemVersion>
#include <QTimer>

#include "tests/ui/real_boxes.h"

namespace coltre {

bool& real_boxes_expected() {
    static bool expected = false;
    return expected;
}

}  // namespace coltre

namespace {

/// Closes message boxes that a test did not announce, which would wait for a user for ever.
class BoxGuard : public QObject {
  public:
    bool eventFilter(QObject* object, QEvent* event) override {
        auto* box = event->type() == QEvent::Show ? qobject_cast<QMessageBox*>(object) : nullptr;
        if (box && !coltre::real_boxes_expected()) {
            ADD_FAILURE() << "unexpected message box: " << box->text().toStdString();
            QTimer::singleShot(0, box, &QMessageBox::reject);
        }
        return false;
    }
};

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // No display needed, none touched; Windows has but the real one.
    if (QOperatingSystemVersion::currentType() != QOperatingSystemVersion::Windows)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "it_IT.UTF-8");  // its decimal comma must play no part
    QApplication application(argc, argv);
    BoxGuard guard;
    application.installEventFilter(&guard);
    return RUN_ALL_TESTS();
}
