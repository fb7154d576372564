#include <cstdio>
#include <iostream>
#include <new>
#include <string>
#include <vector>

#include "cli/command.h"
#include "platform/environment.h"
#include "platform/interruption.h"
#include "startup/own_files.h"

int main(int argc, char** argv) try {
    coltre::take_file_size_limit_as_error();
    coltre::remove_temporary_files_when_interrupted();
    const coltre::PlainStreams plain_streams;
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr);  // a batch hands its results on by itself
    const std::vector<std::string> arguments = coltre::arguments_of(argc, argv);
    const std::string own = coltre::own_directory(argc > 0 ? argv[0] : "");
    const coltre::Environment environment{
        .own_directory = coltre::own_files(own, coltre::users_directory()).altitudes,
        .decimal_separator = coltre::user_decimal_separator()};
    return coltre::cli::run(arguments, environment, std::cin, std::cout, std::cerr,
                            coltre::error_stream_is_terminal());
} catch (const std::bad_alloc&) {
    static_cast<void>(std::fputs("coltre-calcolo: memoria esaurita\n", stderr));
    return coltre::cli::failed;
}
