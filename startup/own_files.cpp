#include "startup/own_files.h"

#include <filesystem>
#include <system_error>

#include "platform/environment.h"
#include "platform/files.h"
#include "site/altitude_file.h"
#include "text/characters.h"

namespace coltre {

namespace {

bool has_altitudes(std::string_view directory) {
    std::error_code unknown;
    return std::filesystem::exists(find_path(altitude_file_name(directory)), unknown) && !unknown;
}

}  // namespace

OwnFiles own_files(std::string_view own_directory, std::string_view users_directory) {
    const std::string own(trim_blanks(own_directory));
    // A directory that cannot be found is not the mark of a common installation: what follows reports it.
    if (users_directory.empty() || !is_directory(own) || may_write_in(own)) return {own, own};
    const std::string users(users_directory);
    return {!has_altitudes(users) && has_altitudes(own) ? own : users, users};
}

}  // namespace coltre
