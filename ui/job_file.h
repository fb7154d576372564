#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <optional>
#include <string>

#include "requests/job.h"
#include "ui/user_dialogs.h"

namespace coltre {

/// The job file that the windows were filled from or saved to, and whether what was calculated since is in
/// it.
class JobFile : public QObject {
    Q_OBJECT

  public:
    /// @param dialogs  live as long as this
    JobFile(UserDialogs& dialogs, QObject* parent);

    /// Has the user choose a job file. What keeps it from being opened, wholly or in part, is said and asked
    /// before anything changes.
    /// @return what to fill the windows with; nothing if they are to stay as they are
    std::optional<Job> open(const std::string& ProgramDirectory);
    /// The windows are filled.
    /// @param content  what saving them would write
    void opened(std::string content);

    /// Has the user save the job. It is written whole or not at all.
    void save(std::string content);

    /// A calculation was made.
    /// @param content  of its job
    void calculated(const std::string& content) { m_unsaved = content != m_content; }

    /// Whether the program may end: where a job file is in use, the user is asked before calculated entries
    /// get lost. Without one, nothing is kept between runs, and nothing asked.
    [[nodiscard]] bool may_end();

    /// Ask for files: title, where to begin, filter in; an empty answer changes nothing.
    using AskFile = std::function<QString(const QString& title, const QString& begin, const QString& filter)>;
    AskFile ask_file_to_open;
    AskFile ask_file_to_save;

  private:
    void show_error(const QString& text);

    UserDialogs& m_dialogs;
    QString m_path;         // empty until a job is opened or saved
    std::string m_content;  // what it holds
    bool m_unsaved = false;
};

}  // namespace coltre
