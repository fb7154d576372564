#include "ui/application.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QSettings>
#include <QTranslator>
#include <cstdlib>
#include <iostream>
#include <string>
#include <utility>

#include "platform/environment.h"
#include "platform/interruption.h"
#include "ui/Form1.h"
#include "ui/qt_dialogs.h"
#include "version/maker.h"
#include "version/version.h"

// Outside any namespace, as the macro wants it: without it the linker drops the resources of a static
// library.
static void know_pictures() {
    Q_INIT_RESOURCE(resources);
}

namespace coltre {

namespace {

/// The suite passes one text; the shell may have cut it at its blanks.
std::string joined_arguments(int argc, char** argv) {
    std::string text;
    const char* blank = "";
    for (const std::string& argument : arguments_of(argc, argv))
        text.append(std::exchange(blank, " ")).append(argument);
    return text;
}

/// What Qt says while it looks for a display; shown once it has found one.
QStringList& held_back() {
    static QStringList messages;
    return messages;
}

/// Without a display Qt ends the process with a core dump and a page of English.
void end_without_display(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
    if (type != QtFatalMsg) {
        held_back() += message;
        return;
    }
    std::cerr << "coltre: nessuno schermo disponibile; senza finestre si usa il comando coltre-calcolo.\n";
    std::_Exit(EXIT_FAILURE);
}

constexpr std::string_view help =
    "Carico neve sulle coperture secondo il D.M. 16 gennaio 1996 e la circolare 4 luglio 1996.\n\n"
    "Uso: coltre\n"
    "     coltre '|diroot=RADICE|'  avviato dalla suite installata in RADICE\n\n"
    "Senza schermo si usa il comando coltre-calcolo.\n";

/// The name of the Shift key on Italian keyboards, which Qt's own translation leaves out.
class KeyNames : public QTranslator {
  public:
    using QTranslator::QTranslator;
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* context, const char* text, const char* /*disambiguation*/,
                                    int /*n*/) const override {
        const bool shift = qstrcmp(context, "QShortcut") == 0 && qstrcmp(text, "Shift") == 0;
        return shift ? QStringLiteral("Maiusc") : QString();
    }
};

/// @return the exit status of the process
int print(std::string_view text) {
    std::cout << text << std::flush;
    return std::cout ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

int run(int argc, char** argv) {
    const std::string command_line = joined_arguments(argc, argv);  // Qt takes its own options out
    if (command_line == "--version") {
        return print("coltre " + std::string(version_and_build()) + "\n" + std::string(notice_text) + "\n");
    }
    if (command_line == "--help") return print(help);

    take_file_size_limit_as_error();
    remove_temporary_files_when_interrupted();
    qInstallMessageHandler(end_without_display);
    QApplication application(argc, argv);
    qInstallMessageHandler(nullptr);
    for (const QString& message : held_back())
        qWarning().noquote() << message;

    QApplication::setApplicationName("coltre");
    // Nothing is kept between runs: file dialogs would leave the files last saved in
    // ~/.config/QtProject.conf. (On Windows they do leave the directory last visited, in the registry, as
    // the system's own dialogs do: the path is of no effect there.)
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
    // Menus of text fields and file dialogs in Italian, whatever the locale. Where Qt's translations are not
    // installed these stay English; the message boxes bring their own words.
    QTranslator italian;
    if (italian.load("qtbase_it", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&italian);
    KeyNames key_names;
    QApplication::installTranslator(&key_names);
    know_pictures();
    QApplication::setWindowIcon(QIcon(":/images/coltre.png"));

    Program program;
    QtDialogs dialogs;
    Form1 window(program, dialogs);
    if (!window.load(command_line, own_directory(argc > 0 ? argv[0] : ""))) return EXIT_FAILURE;
    window.show();
    return QApplication::exec();
}

}  // namespace coltre
