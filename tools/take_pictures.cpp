// Pictures of the real windows, as the manual shows them: tools/screenshots runs it.
// Usage: take_pictures DIRECTORY [dark]

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPalette>
#include <QPrinter>
#include <QPushButton>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>
#include <iostream>
#include <utility>

#include "platform/files.h"
#include "ui/Form1.h"
#include "ui/PeriododiRitorno.h"
#include "ui/casipart.h"
#include "ui/menus.h"
#include "ui/place_finder.h"
#include "ui/qt_dialogs.h"
#include "ui/sketch_widget.h"
#include "ui/steps_window.h"
#include "ui/table_window.h"

namespace {

using namespace coltre;

QPalette dark_palette() {
    const QColor window(45, 45, 45);
    const QColor base(30, 30, 30);
    const QColor text(230, 230, 230);
    QPalette palette(window);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, QColor(130, 130, 130));
    }
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::ToolTipBase, base);
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    return palette;
}

/// The picture with 32 steps of each colour, which leaves fewer than 256 of a window's colours: a third of
/// the bytes, and hardly a difference to the eye.
QImage in_few_colours(const QImage& picture) {
    QImage rounded = picture.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < rounded.height(); ++y) {
        for (int x = 0; x < rounded.width(); ++x) {
            const QRgb steps = rounded.pixel(x, y) & 0xFFF8F8F8;
            rounded.setPixel(x, y, steps | ((steps >> 5) & 0x070707));  // white stays white
        }
    }
    return rounded.convertToFormat(QImage::Format_Indexed8, Qt::ThresholdDither | Qt::AvoidDither);
}

class Pictures {
  public:
    explicit Pictures(QString directory) : m_directory(std::move(directory)) {}

    void take(QWidget& window, const QString& name) {
        window.show();
        QApplication::processEvents();
        const QString file = path(name + ".png");
        constexpr int smallest_file = 0;
        if (!in_few_colours(window.grab().toImage()).save(file, "PNG", smallest_file))
            complain("cannot write " + file);
    }

    /// Takes the window that the action opens and waits for, and closes it.
    void take_opened(const QString& name, const std::function<void()>& action) {
        QTimer::singleShot(0, [&] {
            QWidget* const popup = QApplication::activePopupWidget();
            QWidget* const opened = popup != nullptr ? popup : QApplication::activeModalWidget();
            if (opened == nullptr) return complain("nothing opened for " + name);
            take(*opened, name);
            opened->close();
        });
        action();
    }

    void complain(const QString& what) {
        std::cerr << "take_pictures: " << what.toStdString() << '\n';
        complete = false;
    }
    [[nodiscard]] QString path(const QString& file) const { return m_directory + "/" + file; }

    bool complete = true;

  private:
    QString m_directory;
};

/// Takes the message box that is expected. Nobody sits before these windows: any other one is a mistake of
/// the series.
class PicturedDialogs : public UserDialogs {
  public:
    explicit PicturedDialogs(Pictures& pictures) : m_pictures(pictures) {}

    void expect(const QString& name) { m_name = name; }
    /// The next message is expected, and no picture is taken of it.
    void let_pass() { m_lets_pass = true; }
    void show(const Message& message) override {
        take(message, [&] { m_boxes.show(message); });
    }
    bool ask(const Message& question) override {
        take(question, [&] { m_boxes.ask(question); });
        return true;
    }
    void end() override {}

  private:
    void take(const Message& message, const std::function<void()>& box) {
        if (std::exchange(m_lets_pass, false)) return;
        if (m_name.isEmpty()) return m_pictures.complain(QString::fromStdString(message.text));
        m_pictures.take_opened(std::exchange(m_name, {}), box);
    }

    Pictures& m_pictures;
    QtDialogs m_boxes;
    bool m_lets_pass = false;
    QString m_name;
};

void click(QWidget& window, const char* button) {
    window.findChild<QPushButton*>(button)->click();
}

void type(QWidget& window, const char* field, const QString& text) {
    window.findChild<QLineEdit*>(field)->setText(text);
}

/// Chooses a tab, calculates and takes the window's picture.
void take_tab(QWidget& window, const char* tabs, int tab, const char* calculate, const QString& name,
              Pictures& pictures) {
    window.findChild<QTabWidget*>(tabs)->setCurrentIndex(tab);
    click(window, calculate);
    pictures.take(window, name);
}

void choose_in_menu(QWidget& window, const QString& entry) {
    for (QAction* const action : window.findChild<QMenuBar*>()->findChildren<QAction*>())
        if (action->text() == entry) action->trigger();
}

/// Chooses an entry of the window's menus, which opens a window of this class.
template <typename Window>
Window& open_by_menu(QWidget& window, const QString& entry) {
    choose_in_menu(window, entry);
    return *window.findChildren<Window*>().constLast();
}

/// The steps of the last calculation, and the pages of its report as a PDF.
void take_documents(Form1& window, PicturedDialogs& dialogs, Pictures& pictures) {
    auto& steps = open_by_menu<StepsWindow>(window, "Passaggi del calcolo");
    steps.resize(1180, 560);
    pictures.take(steps, "passaggi");
    steps.close();
    window.findChild<Menus*>()->ask_printer = [&pictures](QPrinter& printer) {
        printer.setOutputFileName(pictures.path("relazione-illustrata.pdf"));
        return true;
    };
    dialogs.let_pass();
    choose_in_menu(window, "Stampa…");
}

void take_main_window(Form1& window, PicturedDialogs& dialogs, Pictures& pictures) {
    window.resize(960, 640);
    pictures.take(window, "finestra-avvio");
    window.findChild<QComboBox*>("Provinciainput")->setCurrentText("Torino");
    type(window, "inputalfa1", "20");
    type(window, "inputalfa2", "40");
    type(window, "inputalfa3", "25");
    type(window, "inputalfa4", "35");
    take_tab(window, "SSTab1", 1, "Calcola", "finestra-due-falde", pictures);
    auto& sketch = *window.findChild<SketchWidget*>("sketch_2");
    pictures.take_opened("menu-schizzo", [&sketch] {
        QContextMenuEvent right_click(QContextMenuEvent::Mouse, {}, {});
        QApplication::sendEvent(&sketch, &right_click);
    });
    take_documents(window, dialogs, pictures);
    take_tab(window, "SSTab1", 2, "Calcola", "finestra-piu-falde", pictures);
    take_tab(window, "SSTab1", 3, "Calcola", "finestra-cilindrica", pictures);
    take_tab(window, "SSTab1", 0, "Calcola", "finestra-una-falda", pictures);
    type(window, "inputalfa", "22,5");
    pictures.take(window, "finestra-dati-cambiati");

    dialogs.expect("messaggio-1500");
    type(window, "asinput", "1650");
    click(window, "Calcola");
    dialogs.expect("informazioni");
    click(window, "Info");
    dialogs.expect("domanda-periodo");
    click(window, "Modifica");
    pictures.take(*window.findChild<PeriododiRitorno*>(), "periodo-ritorno");
    pictures.take_opened("coefficiente-esposizione", [&window] { click(window, "Command1"); });
}

void take_special_cases(Form1& window, Pictures& pictures) {
    click(window, "Bottcpart");
    auto& special_cases = *window.findChild<casipart*>();
    special_cases.resize(900, 540);
    type(special_cases, "b2input", "8");
    take_tab(special_cases, "cartelle", 0, "Calcola2", "casi-discontinuita", pictures);
    take_tab(special_cases, "cartelle", 1, "Calcola2", "casi-pareti", pictures);
    take_tab(special_cases, "cartelle", 2, "Calcola2", "casi-ostacoli", pictures);
}

void take_side_windows(Form1& window, Pictures& pictures) {
    type(window, "asinput", "239");
    auto& finder = open_by_menu<PlaceFinder>(window, "Trova comune…");
    for (const char* const marked : {"torino", "aosta", "belluno"}) {
        type(finder, "cerca", marked);
        click(finder, "segna");
    }
    type(finder, "cerca", "valsamoggia");
    pictures.take(finder, "trova-comune");
    finder.close();
    auto& comparison = open_by_menu<TableWindow>(window, "Confronta siti…");
    comparison.resize(comparison.width(), 270);
    pictures.take(comparison, "confronta-siti");
    window.findChild<QTabWidget*>("SSTab1")->setCurrentIndex(1);
    pictures.take(open_by_menu<TableWindow>(window, "Che cosa succede se…"), "che-cosa-succede-se");
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 2) {
        std::cerr << "usage: take_pictures DIRECTORY [dark]\n";
        return 2;
    }
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setCursorFlashTime(0);  // so that every run gives the same picture
    if (arguments.contains("dark")) QApplication::setPalette(dark_palette());

    Pictures pictures(arguments[1]);
    PicturedDialogs dialogs(pictures);
    const QTemporaryDir directory;
    Program program;
    Form1 window(program, dialogs);
    if (!window.load("", suite_notation(directory.path().toStdString()))) return 1;
    take_main_window(window, dialogs, pictures);
    take_side_windows(window, pictures);
    take_special_cases(window, pictures);
    return pictures.complete ? 0 : 1;
}
