#include "startup/direttori_cond.h"

#include <utility>

#include "platform/files.h"
#include "startup/VarieGestCond.h"
#include "text/characters.h"

namespace coltre {

namespace {

struct StandardDirectory {
    std::string Directories::*path;
    std::string_view name;  ///< under SuiteRoot
};

constexpr std::string_view settings_name = "\\impostazioni";

// In the order of the check and of its message.
constexpr std::array<StandardDirectory, 8> standard_directories{{
    {&Directories::SettingsDirectory, settings_name},
    {&Directories::ProgramDirectory, "\\progra"},
    {&Directories::DriverDirectory, "\\driver"},
    {&Directories::CustomDirectory, "\\custom"},
    {&Directories::HelpDirectory, "\\Help"},
    {&Directories::ManualsDirectory, "\\Manuali"},
    {&Directories::VideoCourseDirectory, "\\videocorso"},
    {&Directories::TempDirectory, "\\temp"},
}};

constexpr std::string_view first_sibling_name = "\\telai";  // under SuiteRoot
constexpr std::array<std::string_view, sibling_count - 1> other_sibling_names{
    "\\travi", "\\pilastri", "\\plinti", "\\solai", "\\muri"};

std::array<std::string_view, standard_directories.size() + 1> checked_paths(const Directories& directories) {
    std::array<std::string_view, standard_directories.size() + 1> paths;
    for (std::size_t i = 0; i < standard_directories.size(); ++i)
        paths[i] = directories.*standard_directories[i].path;
    paths.back() = directories.SiblingDirectories.front();
    return paths;
}

std::string joined(const std::string& directory, std::string_view name) {
    return std::string(directory).append(name);
}

/// The text up to its last `count` characters, and those characters.
struct Tail {
    std::string_view before;
    std::string_view characters;
};

Tail split_tail(std::string_view text, std::size_t count) {
    const std::size_t length = character_count(text);
    const std::size_t cut = bytes_of_characters(text, length > count ? length - count : 0);
    return {text.substr(0, cut), text.substr(cut)};
}

/// Paths are accepted with the separator of either system.
bool ends_with_separator(std::string_view path) {
    return path.ends_with('\\') || path.ends_with('/');
}

/// Reports the fault. Always false: what check_directories() returns when the program must end.
bool end_program(Messages& messages, std::string_view title, std::string text) {
    messages.push_back({Icon::error, std::string(title), std::move(text)});
    return false;
}

bool end_for_missing_directories(Messages& messages, const Directories& directories) {
    return end_program(messages, suite_error_title,
                       "Uno dei seguenti direttori non è presente o non è accessibile:\r" +
                           missing_directory_list(directories));
}

/// First line of a settings file without blanks around it; a file that cannot be read gives an empty text,
/// which no setting may be.
std::string read_setting(const std::string& path) {
    return std::string(trim_blanks(read_first_line(path).value_or("")));
}

}  // namespace

void build_directory_list(Directories& directories) {
    for (const StandardDirectory& directory : standard_directories)
        directories.*directory.path = joined(directories.SuiteRoot, directory.name);
    directories.SiblingDirectories[0] = joined(directories.SuiteRoot, first_sibling_name);
    for (std::size_t i = 0; i < other_sibling_names.size(); ++i)
        directories.SiblingDirectories[i + 1] = joined(directories.CustomDirectory, other_sibling_names[i]);
}

bool directories_missing(const Directories& directories) {
    for (const std::string_view path : checked_paths(directories)) {
        if (!is_directory(path)) return true;
    }
    return false;
}

std::string missing_directory_list(const Directories& directories) {
    std::string list;
    for (const std::string_view path : checked_paths(directories))
        list.append(path).append("\r");
    list.pop_back();
    return list;
}

bool check_directories(std::string_view command_line, std::string_view process_command_line,
                       std::string_view own_directory, Directories& directories, Messages& messages) {
    std::string& root = directories.SuiteRoot;
    root = parse_suite_root(command_line.empty() ? process_command_line : command_line);
    if (root.empty()) {
        const Tail own = split_tail(trim_blanks(own_directory), 7);
        if (lower_case(own.characters) != "\\progra") {
            return end_program(messages, program_title,
                               "Il direttorio della applicazione deve terminare con \\progra");
        }
        root = own.before;
    }
    // Too short for a root ("c:"): no path was built from it, so the message lists them empty. Deliberate.
    if (character_count(root) < 3) return end_for_missing_directories(messages, directories);
    if (ends_with_separator(root)) root.pop_back();
    directories.SettingsDirectory = joined(root, settings_name);

    const std::string jobs_file = directories.SettingsDirectory + "\\dirlav";
    directories.JobsDirectory = read_setting(jobs_file);
    // The shortest jobs directory is "c:\lavori".
    if (character_count(directories.JobsDirectory) < 9)
        return end_program(messages, suite_error_title, jobs_file + " errato o mancante.");
    if (ends_with_separator(directories.JobsDirectory)) directories.JobsDirectory.pop_back();
    directories.JobsDirectory += '\\';
    if (lower_case(split_tail(directories.JobsDirectory, 7).characters) != "lavori\\") {
        return end_program(messages, suite_error_title,
                           "Il direttorio dei lavori deve terminare con < ...\\lavori >.");
    }

    const std::string job_file = directories.SettingsDirectory + "\\lavoro";
    directories.JobName = read_setting(job_file);
    if (character_count(directories.JobName) != 6)
        return end_program(messages, suite_error_title, job_file + " errato o mancante.");
    directories.WorkDirectory = directories.JobsDirectory + directories.JobName;

    build_directory_list(directories);
    if (directories_missing(directories)) return end_for_missing_directories(messages, directories);
    return true;
}

}  // namespace coltre
