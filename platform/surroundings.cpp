#include "platform/surroundings.h"

#include <csignal>
#include <filesystem>
#include <locale>
#include <stdexcept>
#include <system_error>

#include "platform/files.h"

namespace coltre {

std::string own_directory(const char* invoked_as) {
    std::error_code error;
    std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error) program = std::filesystem::absolute(invoked_as, error);
    return suite_notation(program.parent_path());
}

void take_file_size_limit_as_error() {
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

char user_decimal_separator() {
    try {
        return std::use_facet<std::numpunct<char>>(std::locale("")).decimal_point();
    } catch (const std::runtime_error&) {
        return '.';  // the environment names a locale that this system does not have
    }
}

}  // namespace coltre
