#include "calculate/return_period.h"
#include "tests/ui/real_boxes.h"
#include "tests/ui/window_test.h"
#include "ui/CoeffEsposizione.h"
#include "ui/PeriododiRitorno.h"
#include "ui/qt_dialogs.h"

namespace coltre {
namespace {

class Dialogs : public MainWindowTest {
  protected:
    PeriododiRitorno& open_return_period() {
        dialogs.expect_question(
            Icon::information,
            "<Eventuali riduzioni del carico di riferimento qsk potranno essere autorizzate\r"
            "dal Servizio Tecnico Centrale, sentito il Consiglio Superiore dei LL.PP.>\r"
            "(Circ. 04/07/1996)\r"
            "Modificare il Periodo di Ritorno?",
            true);
        click("Modifica");
        auto* dialog = open_window<PeriododiRitorno>();
        if (!dialog) throw std::runtime_error("the dialog did not open");
        return *dialog;
    }
    static void confirm(PeriododiRitorno& dialog, const QString& typed) {
        control<QLineEdit>(dialog, "InputPerRIT").setText(typed);
        QTest::mouseClick(&control(dialog, "OkPerRit"), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

TEST_F(Dialogs, ReturnPeriodIsConfirmedWhileTheMainWindowStaysUsable) {
    dialogs.expect_question(Icon::information, return_period_question().text, false);
    click("Modifica");
    EXPECT_EQ(open_window<PeriododiRitorno>(), nullptr) << "the answer was no";

    PeriododiRitorno& dialog = open_return_period();
    EXPECT_FALSE(dialog.isModal());
    click("Calcola");
    EXPECT_EQ(text("caricosuolo"), " 1.5");
    EXPECT_EQ(&open_return_period(), &dialog) << "a second dialog opened";

    confirm(dialog, "  100 ");
    EXPECT_EQ(open_window<PeriododiRitorno>(), nullptr);
    EXPECT_EQ(text("OutputPerRit"), "100");
    EXPECT_EQ(text("factor_in_force"), "coefficiente 0.9009");
    EXPECT_EQ(window.focusWidget(), &get("Calcola")) << "the next Enter calculates";
    click("Calcola");
    EXPECT_EQ(text("caricosuolo"), " 1.3514");  // 1.5 times 0.9009
}

TEST_F(Dialogs, RejectedReturnPeriodKeepsTheDialogOpenAndTheFactor) {
    PeriododiRitorno& dialog = open_return_period();
    EXPECT_EQ(control<QLineEdit>(dialog, "InputPerRIT").text(), "50");
    EXPECT_EQ(text("factor_in_force"), "coefficiente 1, non confermato");
    EXPECT_EQ(control<QLabel>(dialog, "typed_factor").text(), "coefficiente 0.8056");
    dialogs.expect(Icon::error, "Il Periodo di Ritorno deve essere un numero maggiore di 0.");
    confirm(dialog, "-3");
    dialogs.expect_stop("errore numerico.\rIl numero scritto per «periodo di ritorno» è troppo grande.");
    confirm(dialog, "1e309");  // is no number that the cell could take
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(text("OutputPerRit"), "50");
    EXPECT_EQ(program.cells.return_period, -3);
    EXPECT_EQ(program.cells.return_period_factor, 1);
}

TEST_F(Dialogs, ExposureTableBlocksTheMainWindowUntilItIsClosed) {
    type("asinput", "77");
    bool was_open = false;
    QTimer::singleShot(0, [&] {
        auto* table = open_window<CoeffEsposizione>();
        was_open = table && QApplication::activeModalWidget() == table;
        if (!table) return;
        QTest::mouseClick(&control(*table, "ChiudiButt"), Qt::LeftButton);
    });
    click("Command1");
    EXPECT_TRUE(was_open);
    EXPECT_EQ(open_window<CoeffEsposizione>(), nullptr);
    EXPECT_EQ(field("asinput"), "77");
}

/// Real message boxes, answered as soon as they are on the screen.
TEST(RealBoxes, ShowLinesIconAndItalianButtons) {
    real_boxes_expected() = true;
    QtDialogs dialogs;
    const Message message{Icon::information, "Coltre", "<uno>\rdue"};
    for (const auto& [button, captions] :
         {std::pair(QMessageBox::Ok, "OK"), {QMessageBox::Yes, "No Sì"}, {QMessageBox::No, "No Sì"}}) {
        QTimer::singleShot(0, [button = button, captions = captions] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(box->text(), "<uno>\ndue");
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            EXPECT_EQ(box->icon(), QMessageBox::Information);
            QStringList shown;
            for (const QAbstractButton* it : box->buttons())
                shown += QString(it->text()).remove('&');
            shown.sort();
            EXPECT_EQ(shown.join(' '), captions);
            QTest::mouseClick(box->button(button), Qt::LeftButton);
        });
        if (button == QMessageBox::Ok) {
            dialogs.show(message);
        } else {
            EXPECT_EQ(dialogs.ask(message), button == QMessageBox::Yes);
        }
    }
    real_boxes_expected() = false;
}

}  // namespace
}  // namespace coltre
