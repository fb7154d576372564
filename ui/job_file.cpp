#include "ui/job_file.h"

#include <QApplication>
#include <QDir>
#include <utility>

#include "platform/files.h"
#include "ui/file_choice.h"
#include "ui/sketch_export.h"

namespace coltre {

namespace {

const QString filter = QStringLiteral("Lavori di Coltre (*.coltre)");

Message question(std::string text) {
    return {Icon::warning, std::string(program_title), std::move(text)};
}

}  // namespace

JobFile::JobFile(UserDialogs& dialogs, QObject* parent) : QObject(parent), m_dialogs(dialogs) {
    ask_file_to_open = [](const QString& title, const QString& begin, const QString& what) {
        return choose_file_to_open(QApplication::activeWindow(), title, begin, what);
    };
    ask_file_to_save = [](const QString& title, const QString& begin, const QString& what) {
        return choose_file_to_save(QApplication::activeWindow(), title, begin, what);
    };
}

void JobFile::show_error(const QString& text) {
    m_dialogs.show({Icon::error, std::string(program_title), text.toStdString()});
}

std::optional<Job> JobFile::open(const std::string& ProgramDirectory) {
    if (m_unsaved && !m_dialogs.ask(question("I dati dell'ultimo calcolo non sono salvati in un lavoro.\r"
                                             "Aprire un altro lavoro?")))
        return std::nullopt;
    const QString path = ask_file_to_open(QStringLiteral("Apri lavoro"), m_path, filter);
    if (path.isEmpty()) return std::nullopt;
    const QString shown = QDir::toNativeSeparators(path);
    const FileContent file = read_content(path.toStdString());
    Job job;
    if (file.end == ReadEnd::read) {
        job = read_job(file.bytes, ProgramDirectory);
    } else {
        job.error = file.end == ReadEnd::missing ? "il file non c'è" : file.reason;
    }
    if (job.error) {
        show_error(QStringLiteral("Impossibile aprire il lavoro %1: %2.")
                       .arg(shown, QString::fromStdString(*job.error)));
        return std::nullopt;
    }
    if (!job.not_taken.empty()) {
        const std::string text =
            "Del lavoro " + shown.toStdString() + " non si può riprendere:" + lines_of_message(job.not_taken);
        if (!m_dialogs.ask(question(text + "\r\rAprire il resto?"))) return std::nullopt;
    }
    m_path = path;
    return job;
}

void JobFile::opened(std::string content) {
    m_content = std::move(content);
    m_unsaved = false;
}

void JobFile::save(std::string content) {
    const QString begin = m_path.isEmpty() ? QStringLiteral("lavoro.coltre") : m_path;
    const QString path = ask_file_to_save(QStringLiteral("Salva lavoro"), begin, filter);
    if (path.isEmpty()) return;
    const QString reason = replace_file(path, QByteArray::fromStdString(content));
    if (!reason.isEmpty())
        return show_error(QStringLiteral("Impossibile salvare il lavoro nel file %1: %2.")
                              .arg(QDir::toNativeSeparators(path), reason));
    m_path = path;
    m_content = std::move(content);
    m_unsaved = false;
}

bool JobFile::may_end() {
    return m_path.isEmpty() || !m_unsaved ||
           m_dialogs.ask(question("I dati dell'ultimo calcolo non sono salvati nel lavoro " +
                                  QDir::toNativeSeparators(m_path).toStdString() +
                                  ".\rChiudere il programma?"));
}

}  // namespace coltre
