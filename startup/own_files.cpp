#include "startup/own_files.h"

#include "platform/environment.h"
#include "platform/files.h"
#include "platform/system_files.h"
#include "site/altitude_file.h"
#include "text/characters.h"

namespace coltre {

namespace {

/// What the system does not tell counts as there: what reads it says why it cannot.
bool may_have_altitudes(std::string_view directory) {
    system_files::Entry file;
    const int error = system_files::look_at(find_path(altitude_file_name(directory)), file);
    return error != 0 || file.kind != system_files::Entry::Kind::nothing;
}

}  // namespace

OwnFiles own_files(std::string_view own_directory, std::string_view users_directory) {
    const std::string own(trim_blanks(own_directory));
    // A directory that cannot be found is not the mark of a common installation: what follows reports it.
    if (users_directory.empty() || !is_directory(own) || may_write_in(own)) return {own, own};
    const std::string users(users_directory);
    return {!may_have_altitudes(users) && may_have_altitudes(own) ? own : users, users};
}

}  // namespace coltre
