#include <langinfo.h>
#include <locale.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

#include "platform/environment.h"
#include "platform/files.h"

namespace coltre {

std::vector<std::string> arguments_of(int argc, const char* const* argv) {
    return {argv + (argc > 0 ? 1 : 0), argv + argc};
}

// The streams are as they should be.
PlainStreams::PlainStreams() = default;
PlainStreams::~PlainStreams() = default;

std::string own_directory(const char* invoked_as) {
    std::error_code error;
    std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error) program = std::filesystem::absolute(invoked_as, error);
    return suite_notation(program.parent_path());
}

std::string documents_directory() {
    const char* const home = std::getenv("HOME");
    if (home == nullptr || *home == '\0') return {};
    const char* const settings = std::getenv("XDG_CONFIG_HOME");
    const std::string directory =
        settings != nullptr && *settings == '/' ? settings : std::string(home) + "/.config";

    // A shell script by its form, of lines like XDG_DOCUMENTS_DIR="$HOME/Documenti".
    constexpr std::string_view name = "XDG_DOCUMENTS_DIR=\"";
    constexpr std::string_view in_home = "$HOME/";
    std::ifstream file(directory + "/user-dirs.dirs");
    std::string documents;
    for (std::string line; std::getline(file, line);) {
        if (!line.starts_with(name)) continue;
        documents = line.substr(name.size(), line.find('"', name.size()) - name.size());
        if (documents.starts_with(in_home)) documents.replace(0, in_home.size() - 1, home);
    }
    if (!documents.starts_with('/')) documents = std::string(home) + "/Documents";
    return suite_notation(documents);
}

bool may_write_in(std::string_view directory) {
    const std::filesystem::path path = find_path(directory);
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return false;
    // Also where permissions bind nobody: the administrator's account, some network file systems.
    return (status.st_mode & S_IWUSR) != 0 && ::access(path.c_str(), W_OK | X_OK) == 0;
}

void take_file_size_limit_as_error() {
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
}

bool error_stream_is_terminal() {
    return ::isatty(STDERR_FILENO) == 1;
}

char user_decimal_separator() {
    // Not std::locale: the library's does not survive a lack of memory.
    const locale_t users = ::newlocale(LC_NUMERIC_MASK, "", locale_t{});
    if (users == locale_t{}) return '.';  // the environment names a locale that this system does not have
    const char separator = *::nl_langinfo_l(RADIXCHAR, users);
    ::freelocale(users);
    return separator;
}

}  // namespace coltre
