#include <iostream>
#include <string>
#include <vector>

#include "cli/command.h"
#include "platform/surroundings.h"

int main(int argc, char** argv) {
    coltre::take_file_size_limit_as_error();
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr);  // a batch hands its results on by itself
    const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    const coltre::cli::Surroundings surroundings{
        .own_directory = coltre::own_directory(argc > 0 ? argv[0] : ""),
        .decimal_separator = coltre::user_decimal_separator()};
    return coltre::cli::run(arguments, surroundings, std::cin, std::cout, std::cerr);
}
