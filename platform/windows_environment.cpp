#include <fcntl.h>
#include <io.h>
#include <windows.h>
// behind windows.h, which it needs
#include <shellapi.h>
#include <shlobj.h>

#include <cstdio>
#include <filesystem>
#include <iostream>

#include "platform/environment.h"
#include "platform/files.h"

namespace coltre {

std::vector<std::string> arguments_of(int /*argc*/, const char* const* /*argv*/) {
    // What main() gets is in the system's code page, where most characters have no place.
    int count = 0;
    wchar_t** const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; words != nullptr && i < count; ++i)
        arguments.push_back(path_text(words[i]));
    ::LocalFree(words);
    return arguments;
}

PlainStreams::PlainStreams() {
    for (std::FILE* const stream : {stdin, stdout, stderr})
        ::_setmode(::_fileno(stream), _O_BINARY);
    DWORD mode = 0;
    const bool on_console = ::GetConsoleMode(::GetStdHandle(STD_OUTPUT_HANDLE), &mode) != 0 ||
                            ::GetConsoleMode(::GetStdHandle(STD_ERROR_HANDLE), &mode) != 0;
    if (!on_console) return;
    m_console_code_page = ::GetConsoleOutputCP();
    ::SetConsoleOutputCP(CP_UTF8);
}

PlainStreams::~PlainStreams() {
    if (m_console_code_page == 0) return;
    std::cout.flush();
    ::SetConsoleOutputCP(m_console_code_page);  // the console outlives the program
}

std::string own_directory(const char* /*invoked_as*/) {
    std::wstring program(MAX_PATH, L'\0');
    for (;;) {
        const auto room = static_cast<DWORD>(program.size());
        const DWORD length = ::GetModuleFileNameW(nullptr, program.data(), room);
        if (length < room)
            return suite_notation(std::filesystem::path(program.substr(0, length)).parent_path());
        program.resize(2 * program.size());
    }
}

std::string documents_directory() {
    wchar_t* directory = nullptr;
    const bool known = ::SHGetKnownFolderPath(FOLDERID_Documents, 0, nullptr, &directory) == S_OK;
    std::string text = known ? suite_notation(directory) : std::string();
    ::CoTaskMemFree(directory);
    return text;
}

bool may_write_in(std::string_view directory) {
    const HANDLE opened = ::CreateFileW(find_path(directory).c_str(), FILE_ADD_FILE,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                        OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (opened != INVALID_HANDLE_VALUE) return ::CloseHandle(opened) != 0;
    // What may pass, a directory that another program holds, say, is no lack of permission.
    const DWORD error = ::GetLastError();
    return error != ERROR_ACCESS_DENIED && error != ERROR_WRITE_PROTECT;
}

bool error_stream_is_terminal() {
    return ::_isatty(::_fileno(stderr)) != 0;
}

// There is no such limit.
void take_file_size_limit_as_error() {}

char user_decimal_separator() {
    wchar_t separator[5]{};
    if (::GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, separator, 5) == 0) return '.';
    return separator[0] > 0 && separator[0] < 0x80 ? static_cast<char>(separator[0]) : '.';
}

}  // namespace coltre
