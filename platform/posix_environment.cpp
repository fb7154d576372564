#include <langinfo.h>
#include <locale.h>

#include <csignal>
#include <filesystem>
#include <system_error>

#include "platform/environment.h"
#include "platform/files.h"

namespace coltre {

std::string own_directory(const char* invoked_as) {
    std::error_code error;
    std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error) program = std::filesystem::absolute(invoked_as, error);
    return suite_notation(program.parent_path());
}

void take_file_size_limit_as_error() {
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
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
