#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <new>
#include <string>
#include <vector>

#include "cli/command.h"
#include "platform/environment.h"
#include "platform/interruption.h"
#include "startup/own_files.h"

namespace {

void tell_lack_of_memory() {
    static_cast<void>(std::fputs("coltre-calcolo: memoria esaurita\n", stderr));
}

/// The option parser has constants that are made before main() begins: nobody catches what they throw.
struct BeforeMain {
    std::terminate_handler usual = std::set_terminate([] {
        tell_lack_of_memory();
        std::_Exit(coltre::cli::failed);
    });
};
const BeforeMain before_main [[gnu::init_priority(101)]];  // before those of all other sources

}  // namespace

int main(int argc, char** argv) try {
    std::set_terminate(before_main.usual);
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
    tell_lack_of_memory();
    return coltre::cli::failed;
}
