#pragma once

#include <string>
#include <string_view>
#include <vector>

// What the program finds around itself.
namespace coltre {

/// The arguments that main() was called with, without the program's name, as UTF-8.
std::vector<std::string> arguments_of(int argc, const char* const* argv);

/// Has the standard streams pass every byte as it is, and a console show UTF-8, for its lifetime.
class PlainStreams {
  public:
    PlainStreams();
    ~PlainStreams();
    PlainStreams(const PlainStreams&) = delete;
    PlainStreams& operator=(const PlainStreams&) = delete;

  private:
    [[maybe_unused]] unsigned m_console_code_page = 0;  // to be restored; 0: none
};

/// The directory that holds the program, in the suite's notation, without a separator at its end.
/// @param invoked_as  how the program was called (argv[0]); used where the system does not tell
std::string own_directory(const char* invoked_as);

/// The user's directory for documents, in the suite's notation; empty where the system does not tell.
std::string documents_directory();

/// Where the program keeps the user's files when its own directory is closed to him: "Coltre" among his
/// documents. Empty where there are none. It comes into being with its first file (FileReplacement).
inline std::string users_directory() {
    const std::string documents = documents_directory();
    return documents.empty() ? documents : documents + "\\Coltre";
}

/// True where the user may create files in the directory. Writes nothing to find out.
/// @param directory  one that is there, in the suite's notation
bool may_write_in(std::string_view directory);

/// Has a write beyond the user's limit on the size of files fail, instead of killing the program in the
/// middle of it.
void take_file_size_limit_as_error();

/// Whether somebody reads the standard error stream at a terminal.
bool error_stream_is_terminal();

/// The decimal separator of the user's locale, for the strict number reading; "." where it cannot be told.
char user_decimal_separator();

}  // namespace coltre
