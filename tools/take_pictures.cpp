// Pictures of the real windows for the documents: tools/screenshots runs it.
// Usage: take_pictures DIRECTORY PREFIX [dark]

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTemporaryDir>
#include <iostream>

#include "platform/files.h"
#include "ui/CoeffEsposizione.h"
#include "ui/Form1.h"
#include "ui/PeriododiRitorno.h"
#include "ui/casipart.h"

namespace {

using namespace coltre;

/// Nobody sits before these windows: a message box would be a mistake of the series of pictures.
class NoDialogs : public UserDialogs, public ProgramEnd {
  public:
    void show(const Message& message) override { std::cerr << "message box: " << message.text << '\n'; }
    bool ask(const Message& /*question*/) override { return true; }
    void end() override {}
};

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

class Pictures {
  public:
    explicit Pictures(QString prefix) : m_prefix(std::move(prefix)) {}

    void take(QWidget& window, const QString& name) {
        window.show();
        QApplication::processEvents();
        if (!window.grab().save(m_prefix + name + ".png")) {
            std::cerr << "cannot write " << (m_prefix + name).toStdString() << ".png\n";
            all_written = false;
        }
    }
    bool all_written = true;

  private:
    QString m_prefix;
};

/// Chooses each tab in turn, calculates and takes its picture.
void take_tabs(QWidget& window, const char* tabs, const char* calculate, const QString& name,
               Pictures& pictures) {
    auto* const tab_widget = window.findChild<QTabWidget*>(tabs);
    for (int i = 0; i < tab_widget->count(); ++i) {
        tab_widget->setCurrentIndex(i);
        window.findChild<QPushButton*>(calculate)->click();
        pictures.take(window, name + QString::number(i + 1));
    }
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 3) {
        std::cerr << "usage: take_pictures DIRECTORY PREFIX [dark]\n";
        return 2;
    }
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    if (arguments.contains("dark")) QApplication::setPalette(dark_palette());

    Pictures pictures(arguments[1] + "/" + arguments[2]);
    const QTemporaryDir directory;
    Program program;
    NoDialogs dialogs;
    Form1 window(program, dialogs, dialogs);
    if (!window.load("", suite_notation(directory.path().toStdString()))) return 1;
    window.resize(1024, 680);
    window.findChild<QComboBox*>("Provinciainput")->setCurrentText("Torino");
    window.findChild<QLineEdit*>("inputalfa")->setText("22");
    window.findChild<QLineEdit*>("inputalfa1")->setText("20");
    window.findChild<QLineEdit*>("inputalfa2")->setText("40");
    window.findChild<QLineEdit*>("inputalfa3")->setText("25");
    window.findChild<QLineEdit*>("inputalfa4")->setText("35");
    take_tabs(window, "SSTab1", "Calcola", "finestra", pictures);

    casipart special_cases(
        program, dialogs, [&window] { return window.site_fields(); }, [] {});
    special_cases.setAttribute(Qt::WA_DeleteOnClose, false);
    special_cases.findChild<QLineEdit*>("b2input")->setText("8");
    take_tabs(special_cases, "cartelle", "Calcola2", "casi", pictures);

    CoeffEsposizione exposure;
    pictures.take(exposure, "esposizione");
    PeriododiRitorno return_period(program.cells, dialogs, "50");
    return_period.setAttribute(Qt::WA_DeleteOnClose, false);
    pictures.take(return_period, "periodo");
    return pictures.all_written ? 0 : 1;
}
